#include "ranges/range_messages.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "ranges/range_text.h"
#include "testing/range_texts.h"

namespace quillon {
namespace {

TEST(RangeMessages, ShowTheMistakeInALineThatABoxHasRoomFor) {
  struct Case {
    std::string notation;
    NotationError error;
    std::string text;
  };
  const std::string many = "AA,KK,QQ,JJ,TT,99,88,77,66,55,44,33,22,";
  for (const Case& c : std::vector<Case>{
           {"AKs, KXs+", {5, "\"X\" is not a rank"}, "AKs, KXs+\r\n     ^ \"X\" is not a rank"},
           {many + "XX," + many,
            {many.size(), "\"X\" is not a rank"},
            many.substr(many.size() - 25) + "XX," + many.substr(0, 22) + "\r\n" + std::string(25, ' ') +
                "^ \"X\" is not a rank"},
       }) {
    EXPECT_EQ(NotARangeMessage(c.notation, c.error), (Message{.title = "This Is Not a Range",
                                                              .text = c.text,
                                                              .icon = MessageIcon::kExclamation,
                                                              .buttons = MessageButtons::kOk,
                                                              .columns = true}));
  }
}

TEST(RangeMessages, TellOfWeightsThatAGridCannotShow) {
  const std::string told = "The range \"Loose\" has weights that the grid cannot show, and saving drops them:\r\n";
  const std::string folded = RangeWith({{"AA", 0.1},
                                        {"QQ", 0.2},
                                        {"TT", 0.3},
                                        {"88", 0.4},
                                        {"66", 0.6},
                                        {"44", 0.7},
                                        {"22", 0.8},
                                        {"AKs", 0.15},
                                        {"AJs", 0.25},
                                        {"A9s", 0.35},
                                        {"A7s", 0.45},
                                        {"A5s", 0.56},
                                        {"A3s", 0.65}});
  struct Case {
    std::string text;
    std::string note;
  };
  for (const Case& c : std::vector<Case>{
           {TextWith("AA KK", "AKs"), ""},
           {RangeWith({{"AA", 1}, {"QQ", 0.25}, {"22", 0.5}}), told + "QQ:0.25"},
           {RangeWith({{"AA", 0.25}, {"KK", 0.25}, {"72o", 0.75}}), told + "KK+:0.25,72o:0.75"},
           {RangeWith({{"AA", 2}, {"KK", -1}}), told + "AA:2,KK:-1"},
           {folded, told + "AA:0.1,QQ:0.2,TT:0.3,88:0.4,66:0.6,44:0.7,22:0.8,AKs:0.15,AJs:0.25,A9s:0.35,A7s:0.45,"
                           "A5s:0.56, ..."},
       }) {
    EXPECT_EQ(LostWeightsNote("Loose", RangeWeightsOf(c.text)), c.note);
  }
}

}  // namespace
}  // namespace quillon
