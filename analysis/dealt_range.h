#pragma once

// A range as concrete hands. A range names classes; what an opponent holds is two cards. So a range is dealt: a list of
// all 1326 concrete hands, each with the weight of its class, or 0 if it shares a card with the hero (the user).
// Everything an analysis computes about the opponent is averaged over such a list.
//
// A list is in deck order: "As Ah", "As Ad", "As Ac", "As Ks" and so on to "2d 2c". It is a value, rebuilt for each of
// the hero's classes, since each blocks other hands. Sums always run in list order, so that they agree to the last
// digit wherever they are computed.

#include <string>
#include <string_view>
#include <vector>

#include "hand/hand_classes.h"
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
  FixedText<1> WeightText;  // "1" or "0": the weight when the record was built, even if it has changed since

  bool operator==(const HandRecord&) const = default;
};

using HandList = std::vector<HandRecord>;

/// All 1326 hands, at weight 0 if `dead1` or `dead2` occurs in the hand's `Cards`, otherwise 1. The dead texts are
/// usually cards, but any text is searched for:
///
///     "Ah"        blocks the 51 hands that hold the card
///     "A"         blocks every hand with an ace
///     "Xx"        is in no hand and blocks nothing
///     ""          is found in every hand and blocks all 1326
[[nodiscard]] HandList BuildCombos(std::string_view dead1, std::string_view dead2);

/// The range dealt around the hero's two cards: the list of BuildCombos, with each unblocked hand at the weight of its
/// class in `rangeText`, whatever number that is. The cards "Xx" and "Yy" block nothing and deal the whole range.
/// Without a name and a text there is no range, and the list has no records.
///
/// RunTimeError "Subscript out of range" for a named range with an empty text, and "Invalid procedure call or
/// argument" for a text without any ")". Both name the range's file.
[[nodiscard]] HandList DealText(std::string_view rangeName, std::string_view card1, std::string_view card2,
                                std::string_view rangeText);

/// The sum of the weights: 1326 for a full range with no card blocked, 1225 with two cards blocked. RunTimeError
/// "Subscript out of range" for a list without records.
[[nodiscard]] double TotalWeight(const HandList& list);

/// The calling range limited to what the opponent holds: each weight becomes the smaller of the two. Both lists must be
/// dealt around the same cards. RunTimeError "Subscript out of range" if `current` is empty or the longer one.
[[nodiscard]] HandList LimitToRange(const HandList& current, HandList calling);

/// The classes that LimitToRange cuts, for the report's warning, in the order in which the deck reaches them: by label
/// if absent from `current`, with "½'d" appended if at half weight there, as in "AA, AKs (½'d), KQo". Intentional: only
/// classes at full weight in the calling range are named, since a half one already says "maybe". The empty text if
/// there are none. Fails as LimitToRange does.
[[nodiscard]] std::string ListDroppedHands(const HandList& current, const HandList& calling);

}  // namespace quillon
