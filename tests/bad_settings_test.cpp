// Settings files that are broken, or that somebody has edited by hand, given to the main window as it starts: a
// table of files with what each must bring up, and random ones beside the oracle. What the window shows of such a
// file it also stores, and leaves the rest of the file alone.

#include <QCheckBox>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "testing/main_stage.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/runs.h"
#include "testing/oracle/settings.h"
#include "tests/address_sanitizer.h"
#include "tests/bad_inputs.h"
#include "tests/companion_in_folder.h"

namespace quillon {
namespace {

using namespace std::string_literals;

constexpr std::int16_t kBoxes = 5;

/// What a window shows of its settings.
struct Start {
  std::vector<std::string> Boxes;
  int Left = 0;
  int Top = 0;
  int Upgrade = 0;
  std::string Odds;
  int Fault = 0;
};

// "0=100; 4=50; odds 3 : 1, 25%; at 100,50; upgrade 1", or "error 380" where the start ends in a run-time error.
std::string TextOf(const Start& start) {
  if (start.Fault != 0) return "error " + std::to_string(start.Fault);
  std::string text;
  for (std::size_t i = 0; i < start.Boxes.size(); ++i) {
    if (!start.Boxes[i].empty()) text += std::to_string(i) + "=" + start.Boxes[i] + "; ";
  }
  return text + "odds " + start.Odds + "; at " + std::to_string(start.Left) + "," + std::to_string(start.Top) +
         "; upgrade " + std::to_string(start.Upgrade);
}

// The screen of the tests is 800 by 800 pixels, and the window 1020 by 603.
constexpr int kTwips = 12000;
constexpr int kCentredLeft = -110;
constexpr int kCentredTop = 99;  // half a pixel goes up

int PixelOf(const std::string& text) {
  const double twips = plain::LeadingNumber(text);
  const bool outside = twips < 0 || twips > kTwips;
  return outside ? 0 : static_cast<int>(std::floor(static_cast<double>(static_cast<float>(twips)) / 15 + 0.5));
}

// By the oracle.
Start PlainStart(const std::string& file) {
  Start start;
  start.Odds = "X:1, 0%";
  for (int box = 0; box < kBoxes; ++box)
    start.Boxes.push_back(plain::Line(plain::Utf8(plain::SettingIn(file, "Values", std::to_string(box)))));
  if (!start.Boxes[4].empty()) {
    const plain::Odds odds = plain::OddsOf(start.Boxes[2], start.Boxes[3], start.Boxes[4]);
    start.Odds = odds.Fault == 0 ? odds.Labels : "N/A, N/A";
  }
  const std::string left = plain::SettingIn(file, "Main", "Left");
  const std::string top = plain::SettingIn(file, "Main", "Top");
  const bool placed = !left.empty() && !top.empty();
  start.Left = placed ? PixelOf(left) : kCentredLeft;
  start.Top = placed ? PixelOf(top) : kCentredTop;
  const double upgrade = std::nearbyint(plain::LeadingNumber(plain::SettingIn(file, "Upgrade", "Auto")));
  constexpr int kInvalidPropertyValue = 380;
  const bool known = upgrade == 0 || upgrade == 1 || upgrade == 2;
  if (start.Fault == 0 && !known) start.Fault = kInvalidPropertyValue;
  start.Upgrade = known ? static_cast<int>(upgrade) : 0;
  return start;
}

int UpgradeShown(MainStage& stage) {
  const Qt::CheckState state = stage.Get<QCheckBox>("chkUpgrade").checkState();
  return state == Qt::Unchecked ? 0 : state == Qt::Checked ? 1 : 2;
}

// By the window.
Start StartOf(MainStage& stage) {
  Start start;
  const auto fault = FaultOf([&stage] {
    const LeaksDoNotCount ends;
    stage.Form.Start();
    return 0;
  });
  if (fault) {
    start.Fault = static_cast<int>(*fault);
    return start;
  }
  for (std::int16_t box = 0; box < kBoxes; ++box)
    start.Boxes.push_back(stage.BoxText(box));
  start.Odds = stage.Caption("lblHisOdds") + ", " + stage.Caption("lblHisBEP");
  start.Left = stage.Form.x();
  start.Top = stage.Form.y();
  start.Upgrade = UpgradeShown(stage);
  EXPECT_EQ(stage.Screen(), "About");
  EXPECT_EQ(stage.Web.Asked.empty(), start.Upgrade != 1);
  return start;
}

// ---- what is stored

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

// How many lines of `before` are not in `after`, where the others are in the same order: all but those of the longest
// common row of lines. The last line may have gained its line end.
std::size_t LostLines(const std::string& before, const std::string& after) {
  const std::vector<std::string> kept = LinesOf(after);
  std::vector<std::size_t> common(kept.size() + 1);  // with the first so many lines of `after`
  for (const std::string& line : LinesOf(before)) {
    std::size_t diagonal = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) {
      const bool same = line == kept[i] || line + "\r" == kept[i];
      const std::size_t longest = same ? diagonal + 1 : std::max(common[i], common[i + 1]);
      diagonal = std::exchange(common[i + 1], longest);
    }
  }
  return LinesOf(before).size() - common.back();
}

// A start writes nothing but the switch, which it sets to what it has read, and that only where it has changed by it.
void ExpectUntouched(const std::string& before, const std::string& after, const Start& start) {
  if (start.Fault != 0 || start.Upgrade == 0) {
    EXPECT_EQ(after, before);
    return;
  }
  EXPECT_EQ(plain::SettingIn(after, "Upgrade", "Auto"), std::to_string(start.Upgrade));
  EXPECT_LE(LostLines(before, after), 1U) << Shown(after);
  EXPECT_EQ(LinesOf(before).size(), LinesOf(after).size());
}

// ---- the table

struct SettingsCase {
  const char* Name;  // the rule
  std::string File;
  std::string Boxes;  // "0=100; 4=50; "
  std::string Rest;  // after "at"; empty for the usual
  std::string Odds = "X:1, 0%";
};

constexpr const char* kUsual = "-110,99; upgrade 0";

std::string ValuesOf(const std::string& lines) {
  return "[Values]\r\n" + lines;
}

std::string MainAt(const std::string& left, const std::string& top) {
  return "[Main]\r\nLeft=" + left + "\r\nTop=" + top + "\r\n";
}

std::string UpgradeOf(const std::string& value) {
  return "[Upgrade]\r\nAuto=" + value + "\r\n";
}

std::vector<SettingsCase> BrokenFiles() {
  return {
      {"An empty file has the usual settings", "", "", ""},
      {"A file of zeros has the usual settings", std::string(5000, '\0'), "", ""},
      {"A file of line ends has the usual settings", "\r\n\n\r\r\n\n", "", ""},
      {"A file of brackets has the usual settings", std::string(5000, '['), "", ""},
      {"A file of equals signs has the usual settings", std::string(5000, '='), "", ""},
      {"A picture has the usual settings", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1"s, "", ""},
      {"A range has the usual settings", TextWith("AA KK"), "", ""},
      {"Two bytes for a character have the usual settings", "\xFF\xFE[\0V\0a\0l\0u\0e\0s\0]\0\n\0000\0=\0005\0"s, "",
       ""},
      {"A key before any heading is none", "0=100\r\n", "", ""},
      {"A key in another section is none", "[Main]\r\n0=100\r\n", "", ""},
      {"A heading that is not closed is none", "[Values\r\n0=100\r\n", "", ""},
      {"A heading that is not opened is none", "Values]\r\n0=100\r\n", "", ""},
      {"A heading with a word more is another one", "[Values 2]\r\n0=100\r\n", "", ""},
      {"A key that is cut off is none", "[Values]\r\n0", "", ""},
      {"A heading and a key on one line are a heading", "[Values] 0=100", "", ""},
      {"A comment is no key", ValuesOf(";0=100\r\n ; 1=50\r\n"), "", ""},
      {"A key of two digits is another one", ValuesOf("00=100\r\n"), "", ""},
      {"A key beyond the boxes is none", ValuesOf("5=100\r\n-1=5\r\n"), "", ""},
  };
}

std::vector<SettingsCase> EditedFiles() {
  return {
      {"The last line needs no end", ValuesOf("0=100"), "0=100; ", ""},
      {"Line feeds do for line ends", "[Values]\n0=100\n1=50\n", "0=100; 1=50; ", ""},
      {"Carriage returns do for line ends", "[Values]\r0=100\r1=50", "0=100; 1=50; ", ""},
      {"A mark in front does no harm", "\xEF\xBB\xBF[Values]\r\n0=100\r\n", "0=100; ", ""},
      {"The case of names does not count", "[vALUES]\r\n0=100\r\n[MAIN]\r\nLEFT=150\r\ntop=300", "0=100; ",
       "10,20; upgrade 0"},
      {"Blanks and tabs round names and values do not count", " [ Values\t]\r\n\t0 \t=  100\t\r\n", "0=100; ", ""},
      {"Of two keys the first counts", ValuesOf("0=100\r\n0=200\r\n"), "0=100; ", ""},
      {"Of two sections the first counts", ValuesOf("0=100\r\n[Values]\r\n0=200\r\n1=50\r\n"), "0=100; ", ""},
      {"A value may hold equals signs", ValuesOf("0==1+2\r\n1=a=b\r\n"), "0==1+2; 1=a=b; ", ""},
      {"Quotes round a value are taken off", ValuesOf("0=\" 5 \"\r\n1='a'\r\n"), "0= 5 ; 1=a; ", ""},
      {"A quote alone stays", ValuesOf("0=\"\r\n1='a\r\n"), "0=\"; 1='a; ", ""},
      {"Empty quotes are an empty value", ValuesOf("0=\"\"\r\n"), "", ""},
      {"A semicolon in a value is part of it", ValuesOf("0=5;6\r\n"), "0=5;6; ", ""},
      {"Letters are a value", ValuesOf("0=abc\r\n"), "0=abc; ", ""},
      {"A zero byte is part of a value", ValuesOf("0=5\0006\r\n"s), "0=5\0006; "s, ""},
      {"The code page is read",
       ValuesOf("0=\x80"
                "5 \xBD\r\n"),
       "0=\u20AC5 \u00BD; ", ""},
      {"Text in UTF-8 is read as the code page", ValuesOf("0=\xC2\xBD\r\n"), "0=\u00C2\u00BD; ", ""},
      {"A long value is cut after 2999 characters", ValuesOf("0=" + std::string(4000, '7')),
       "0=" + std::string(2999, '7') + "; ", ""},
      {"A megabyte of other lines does no harm", ValuesOf("x=1\r\n") + std::string(1U << 20U, ' ') + "\r\n0=100",
       "0=100; ", ""},
  };
}

std::vector<SettingsCase> Places() {
  return {
      {"Left alone is no place", "[Main]\r\nLeft=150\r\n", "", ""},
      {"An empty top is no place", MainAt("150", ""), "", ""},
      {"A place below zero is the edge", MainAt("-5", "-0.001"), "", "0,0; upgrade 0"},
      {"A place beyond the screen is the edge", MainAt("12001", "1e999"), "", "0,0; upgrade 0"},
      {"A place at the screen's end stays", MainAt("12000", "12000"), "", "800,800; upgrade 0"},
      {"A word is the place zero", MainAt("left", "top"), "", "0,0; upgrade 0"},
      {"Digits with a word behind are a place", MainAt("150 twips", "3e2x"), "", "10,20; upgrade 0"},
      {"A place too small for a number is zero", MainAt("1e-999", ".0"), "", "0,0; upgrade 0"},
      {"A hexadecimal place is zero", MainAt("0x96", "NaN"), "", "0,0; upgrade 0"},
  };
}

std::vector<SettingsCase> Switches() {
  return {
      {"The third state asks nobody", UpgradeOf("2"), "", "-110,99; upgrade 2"},
      {"A state goes to the nearest whole one", UpgradeOf("0.5"), "", "-110,99; upgrade 0"},
      {"A state with a word behind counts", UpgradeOf("1 = yes"), "", "-110,99; upgrade 1"},
      {"A word is the state zero", UpgradeOf("true"), "", "-110,99; upgrade 0"},
      {"A state beyond the third ends the program", UpgradeOf("3"), "error 380", ""},
      {"A state below the first ends the program", UpgradeOf("-1"), "error 380", ""},
      {"A state beyond all numbers ends the program", UpgradeOf("1e999"), "error 380", ""},
  };
}

std::vector<SettingsCase> OddsThatCannotBeTold() {
  return {
      {"Odds of minus one", ValuesOf("2=100\r\n4=-50\r\n"), "2=100; 4=-50; ", "", "N/A, N/A"},
      {"Odds of minus one by one box alone", ValuesOf("2=40\r\n4=-20\r\n"), "2=40; 4=-20; ", "", "N/A, N/A"},
      {"Odds beyond all numbers", ValuesOf("2=1e308\r\n3=1e308\r\n4=1\r\n"), "2=1e308; 3=1e308; 4=1; ", "", "N/A, N/A"},
  };
}

TEST(BadSettings, BringUpWhatIsTold) {
  for (const auto& cases : {BrokenFiles(), EditedFiles(), Places(), Switches(), OddsThatCannotBeTold()}) {
    for (const SettingsCase& one : cases) {
      SCOPED_TRACE(one.Name);
      MainStage stage;
      stage.WriteSettings(one.File);
      const Start start = StartOf(stage);
      const std::string rest = "odds " + one.Odds + "; at " + (one.Rest.empty() ? kUsual : one.Rest);
      EXPECT_EQ(TextOf(start), one.Boxes.starts_with("error") ? one.Boxes : one.Boxes + rest);
      EXPECT_EQ(TextOf(PlainStart(one.File)), TextOf(start)) << "by the plain reader";
      ExpectUntouched(one.File, stage.Settings(), start);
    }
  }
}

// ---- what is not a file

TEST(BadSettings, ThatCannotBeReadAreTheUsualOnesAndStopNothing) {
  for (const char* kind : {"folder", "circle", "nowhere"}) {
    SCOPED_TRACE(kind);
    MainStage stage;
    const std::filesystem::path file = stage.Program.Folder().Path / "settings.ini";
    if (kind == "folder"s) {
      std::filesystem::create_directory(file);
    } else {
      std::filesystem::create_symlink(kind == "circle"s ? "settings.ini" : "nowhere", file);
    }
    EXPECT_EQ(TextOf(StartOf(stage)), "odds X:1, 0%; at "s + kUsual);
    EXPECT_TRUE(stage.Form.close());
    EXPECT_EQ(stage.Ends, 1);
  }
}

// ---- random ones

// A value is one line, and what is stored of it ends with that.
std::string Stored(const std::string& value) {
  return value.substr(0, value.find_first_of("\r\n"));
}

// Closing the window stores what it shows, and takes nothing else from the file.
void ExpectStored(MainStage& stage, const std::string& before, const Start& start) {
  stage.Form.close();
  EXPECT_EQ(stage.Ends, 1);
  const std::string after = stage.Settings();
  if (plain::IsUtf16(before)) {
    EXPECT_EQ(after, before);
    return;
  }
  for (int box = 0; box < kBoxes; ++box) {
    EXPECT_EQ(plain::Utf8(plain::SettingIn(after, "Values", std::to_string(box))),
              Stored(start.Boxes[static_cast<std::size_t>(box)]))
        << box;
  }
  EXPECT_EQ(plain::SettingIn(after, "Main", "Left"), plain::NumberText(start.Left * 15));
  EXPECT_EQ(plain::SettingIn(after, "Main", "Top"), plain::NumberText(start.Top * 15));
  const std::string upgrade = plain::SettingIn(before, "Upgrade", "Auto");
  EXPECT_EQ(plain::SettingIn(after, "Upgrade", "Auto"), start.Upgrade == 0 ? upgrade : std::to_string(start.Upgrade));
  EXPECT_EQ(plain::SettingIn(after, "Manager", "Left"), plain::SettingIn(before, "Manager", "Left"));
  constexpr std::size_t kStoredKeys = 8;
  EXPECT_LE(LostLines(before, after), kStoredKeys) << Shown(after);
}

TEST(BadSettings, ThatAreRandomBringUpWhatThePlainReaderFinds) {
  BadInputs inputs(5);
  Tally tally("settings files");
  for (int left = RandomInputs(10); left > 0 && !testing::Test::HasFailure(); --left) {
    const std::string file = inputs.SettingsFile();
    SCOPED_TRACE(Shown(file));
    MainStage stage;
    stage.WriteSettings(file);
    const auto ranges = StateOf(RangeFolderPath(stage.Program.Folder()));
    const Start start = StartOf(stage);
    EXPECT_EQ(TextOf(start), TextOf(PlainStart(file)));
    ExpectUntouched(file, stage.Settings(), start);
    if (start.Fault == 0) ExpectStored(stage, file, start);
    tally.Count(start.Fault == 0 ? "read" : "with a run-time error");
    EXPECT_TRUE(StateOf(RangeFolderPath(stage.Program.Folder())) == ranges) << "a range was written to";
  }
}

}  // namespace
}  // namespace quillon
