#include "ranges/shift_keys.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillon {
namespace {

// What happens to the keys, one letter each:
//   L, R   left, right Shift down      a   the program gets the keyboard back, Shift held
//   l, r   left, right Shift up        b   the same, Shift not held
//   ?      a question while Shift is held      .   a question while it is not
// The answers are a letter each too, y or n, in the order of the questions.
std::string AnswersTo(const std::string& events) {
  ShiftKeys keys;
  std::string answers;
  for (const char event : events) {
    if (event == 'L') keys.KeyDown(ShiftKey::kLeft);
    if (event == 'R') keys.KeyDown(ShiftKey::kRight);
    if (event == 'l') keys.KeyUp(ShiftKey::kLeft);
    if (event == 'r') keys.KeyUp(ShiftKey::kRight);
    if (event == 'a' || event == 'b') keys.PutRight(event == 'a');
    if (event == '?' || event == '.') answers += keys.Ask(event == '?') ? 'y' : 'n';
  }
  return answers;
}

struct Case {
  const char* rule;
  const char* events;
  const char* answers;
};

void ExpectAnswers(const std::vector<Case>& cases) {
  for (const Case& c : cases)
    EXPECT_EQ(AnswersTo(c.events), c.answers) << c.rule;
}

TEST(ShiftKeys, AnswerIsYesOncePerPress) {
  ExpectAnswers({
      {"the first question under a press, and no later one", "L???", "ynn"},
      {"the right key is as good", "R???", "ynn"},
      {"a new press counts anew", "L??l.L??", "ynnyn"},
      {"a new press without a question between", "L?lL??", "yyn"},
      {"a press that is over does not count for a later one", "LlL??", "yn"},
      {"repeats of a held key are no presses", "LLL?LL?L?", "ynn"},
  });
}

TEST(ShiftKeys, EachOfTheTwoKeysCountsByItself) {
  ExpectAnswers({
      {"the second key while the first is held", "L?R??", "yyn"},
      {"one question uses up both presses", "LR??", "yn"},
      {"the first key let go after both were asked about", "LR?l?", "yn"},
      {"the first key let go before the question", "LRl??", "yn"},
      {"the key asked about stays down while the other comes and goes", "L?Rr?", "yn"},
      {"the other key pressed twice", "L?R?rR?", "yyy"},
      {"repeats of the first while the second is held", "LR?LR?", "yn"},
  });
}

TEST(ShiftKeys, PressElsewhereCountsOnce) {
  ExpectAnswers({
      {"held with no key known as down", "???", "ynn"},
      {"seen when the keyboard comes back", "a??", "yn"},
      {"its release, of either key, ends it", "?l.?", "yny"},
      {"its release by the right key", "?r??", "yyn"},
      {"a press of the other key while it is held", "?L??", "yyn"},
      {"the other key pressed and let go while it is held", "?Ll?", "yn"},
      {"a key that was seen going down is not counted again", "La??", "yn"},
  });
}

TEST(ShiftKeys, ReleaseElsewhereIsPutRight) {
  ExpectAnswers({
      {"a question while Shift is not held", "L.", "n"},
      {"the next press is no repeat", "L?.L??", "ynyn"},
      {"nor is it after the keyboard came back", "L?bL??", "yyn"},
      {"a press that was not asked about is gone", "Lb.?", "ny"},
      {"a press elsewhere that is over", "?.L?", "yny"},
      {"a release of a key that is up already", "lr.L?", "ny"},
  });
}

}  // namespace
}  // namespace quillon
