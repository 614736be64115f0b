#pragma once

// A range laid out as concrete hands. A range names classes; what an opponent holds is two cards. So a range is dealt:
// all 1326 concrete hands are in a list, each with the weight of its class, and a hand that shares a card with the
// hero's (the user's own two cards) weighs nothing, since those cards are out of the deck. Everything an analysis knows
// of the opponent is averaged over such a list.
//
// A list is in the order of the deck: "As Ah", "As Ad", "As Ac", "As Ks" and so on to "2d 2c". It is a value, and is
// built anew for every class of the hero's, because every class blocks other hands. Sums run over it in its order, so
// that they come out the same to the last digit wherever they are made.

#include <string>
#include <string_view>
#include <vector>

#include "hand/hand_classes.h"
#include "ranges/range_files.h"
#include "support/fixed_text.h"

namespace quillon {

/// One concrete two-card hand.
struct HandRecord {
  char Card1Rank = '\0';
  char Card2Rank = '\0';
  char Card1Suit = '\0';
  char Card2Suit = '\0';
  FixedText<2> Card1;  // rank and suit: "As"
  FixedText<2> Card2;
  FixedText<5> Cards;  // both, with a space between: "As Kh"
  FixedText<3> Label;  // the hand's class: "AKo"
  double Weight = 0;  // how much of the hand is in the range: 1 full, 0.5 half, 0 absent or blocked
  FixedText<1> WeightText;  // "1" or "0": the weight when the record was built, whatever became of it since

  bool operator==(const HandRecord&) const = default;
};

using HandList = std::vector<HandRecord>;

/// All 1326 hands, of weight 0 where `dead1` or `dead2` occurs in the hand's `Cards` and of weight 1 elsewhere. The
/// dead texts are cards as a rule, and any other text is searched for just the same:
///
///     "Ah"        blocks the 51 hands that hold the card
///     "A"         blocks every hand with an ace
///     "Xx"        is in no hand and blocks nothing
///     ""          is found in every hand and blocks all 1326
[[nodiscard]] HandList BuildCombos(std::string_view dead1, std::string_view dead2);

/// The range dealt around the hero's two cards: the list of BuildCombos, each hand that is not blocked having the
/// weight of its class in `rangeText`, whatever number that is. The cards "Xx" and "Yy" block nothing and deal the
/// whole range. Without a name and a text there is no range, and the list has no records.
///
/// A named range with an empty text is a RunTimeError "Subscript out of range", and a text without any ")" cannot be
/// read: RunTimeError "Invalid procedure call or argument". Both name the range's file.
[[nodiscard]] HandList DealText(std::string_view rangeName, std::string_view card1, std::string_view card2,
                                std::string_view rangeText);

/// The same, with an empty `rangeText` filled from the range's file first, and the caller keeps what was read.
[[nodiscard]] HandList DealRange(const ProgramFolder& folder, std::string_view rangeName, std::string_view card1,
                                 std::string_view card2, std::string& rangeText);

/// The sum of the weights: 1326 for a full range with no card blocked, 1225 with two cards blocked. A list without
/// records has no sum: RunTimeError "Subscript out of range".
[[nodiscard]] double TotalWeight(const HandList& list);

/// The calling range cut down to what the opponent holds at all: each weight becomes the smaller of the two. Both lists
/// must have been dealt around the same cards. An empty `current`, or a `calling` shorter than it, is a RunTimeError
/// "Subscript out of range".
[[nodiscard]] HandList LimitToRange(const HandList& current, HandList calling);

/// The classes that LimitToRange cuts, for the report's warning, in the order in which the deck reaches them: a class
/// absent from `current` is given by its label, one at half weight there with "½'d" after it, as in
/// "AA, AKs (½'d), KQo". Only classes at full weight in the calling range are named; a half one that is cut is not.
/// Intentional: a half one says "maybe" already. The empty text if there is none. Fails as LimitToRange does.
[[nodiscard]] std::string ListDroppedHands(const HandList& current, const HandList& calling);

}  // namespace quillon
