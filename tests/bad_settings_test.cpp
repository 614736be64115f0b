// Odd and random settings files, broken or edited by hand, for the main window's start. It must show what the oracle
// reads, store what it shows, and leave the rest of the file unchanged.

#include <QCheckBox>
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "testing/folder_state.h"
#include "testing/main_stage.h"
#include "testing/oracle/numbers.h"
#include "testing/oracle/runs.h"
#include "testing/oracle/settings.h"
#include "testing/split_text.h"
#include "tests/address_sanitizer.h"
#include "tests/bad_inputs.h"

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

// "0=100; 4=50; odds 3 : 1, 25%; at 100,50; upgrade 1", or "error 380" if the start ends in a run-time error.
std::string TextOf(const Start& start) {
  if (start.Fault != 0) return "error " + std::to_string(start.Fault);
  std::string text;
  for (std::size_t i = 0; i < start.Boxes.size(); ++i) {
    if (!start.Boxes[i].empty()) text += std::to_string(i) + "=" + start.Boxes[i] + "; ";
  }
  return text + "odds " + start.Odds + "; at " + std::to_string(start.Left) + "," + std::to_string(start.Top) +
         "; upgrade " + std::to_string(start.Upgrade);
}

// The tests' screen is 1400 by 1000 pixels, the window 1020 by 603.
constexpr int kWidth = 21000;  // twips
constexpr int kHeight = 15000;
constexpr int kCentredLeft = 190;
constexpr int kCentredTop = 199;  // halves round up

int PixelOf(const std::string& text, int screenLength) {
  const double twips = plain::LeadingNumber(text);
  const bool outside = twips < 0 || twips > screenLength;
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
  start.Left = placed ? PixelOf(left, kWidth) : kCentredLeft;
  start.Top = placed ? PixelOf(top, kHeight) : kCentredTop;
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

// The number of lines of `before` missing from `after`, by the longest common subsequence. The last line may have
// gained its line end.
std::size_t LostLines(const std::string& before, const std::string& after) {
  const std::vector<std::string> kept = Lines(after);
  std::vector<std::size_t> common(kept.size() + 1);  // with this many first lines of `after`
  for (const std::string& line : Lines(before)) {
    std::size_t diagonal = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) {
      const bool same = line == kept[i] || line + "\r" == kept[i];
      const std::size_t longest = same ? diagonal + 1 : std::max(common[i], common[i + 1]);
      diagonal = std::exchange(common[i + 1], longest);
    }
  }
  return Lines(before).size() - common.back();
}

// A start writes only the switch, as it has read it, and only if that changes the text.
void ExpectUntouched(const std::string& before, const std::string& after, const Start& start) {
  if (start.Fault != 0 || start.Upgrade == 0) {
    EXPECT_EQ(after, before);
    return;
  }
  EXPECT_EQ(plain::SettingIn(after, "Upgrade", "Auto"), std::to_string(start.Upgrade));
  EXPECT_LE(LostLines(before, after), 1U) << Shown(after);
  EXPECT_EQ(Lines(before).size(), Lines(after).size());
}

// A value is one line, so it is cut at its first line end.
std::string Stored(const std::string& value) {
  return value.substr(0, value.find_first_of("\r\n"));
}

// Closing the window stores what it shows, and removes nothing else from the file.
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

/// Returns the outcome.
std::string ExpectAsThePlainReader(const std::string& file) {
  SCOPED_TRACE(Shown(file));
  MainStage stage;
  stage.WriteSettings(file);
  const auto ranges = FolderState(RangeFolderPath(stage.Program.Folder()));
  const Start start = StartOf(stage);
  EXPECT_EQ(TextOf(start), TextOf(PlainStart(file)));
  ExpectUntouched(file, stage.Settings(), start);
  if (start.Fault == 0) ExpectStored(stage, file, start);
  EXPECT_TRUE(FolderState(RangeFolderPath(stage.Program.Folder())) == ranges) << "a range was written to";
  return start.Fault == 0 ? "read" : "with a run-time error";
}

const std::vector<std::string> kOddFiles = {"",
                                            std::string(5000, '\0'),
                                            "\r\n\n\r\r\n\n",
                                            std::string(5000, '['),
                                            std::string(5000, '='),
                                            TextWith("AA KK"),
                                            "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1"s,
                                            "\xFF\xFE[\0V\0a\0l\0u\0e\0s\0]\0\n\0000\0=\0005\0"s,
                                            "0=100\r\n",
                                            "[Main]\r\n0=100\r\n",
                                            "[Values\r\n0=100\r\n",
                                            "Values]\r\n0=100\r\n",
                                            "[Values 2]\r\n0=100\r\n",
                                            "[Values]\r\n0",
                                            "[Values] 0=100",
                                            "[Values]\n0=100\n1=50\n",
                                            "[Values]\r0=100\r1=50",
                                            "\xEF\xBB\xBF[Values]\r\n0=100\r\n",
                                            "[vALUES]\r\n0=100\r\n[MAIN]\r\nLEFT=150\r\ntop=300",
                                            " [ Values\t]\r\n\t0 \t=  100\t\r\n",
                                            "[Values]\r\n0=100\r\n[Values]\r\n0=200\r\n1=50\r\n",
                                            "[Values]\r\n0=5\0006\r\n"s,
                                            "[Values]\r\n0=" + std::string(4000, '7'),
                                            "[Values]\r\nx=1\r\n" + std::string(1U << 20U, ' ') + "\r\n0=100",
                                            "[Main]\r\nLeft=150\r\n",
                                            "[Main]\r\nLeft=150\r\nTop=\r\n"};

// The text after a heading.
struct OddValues {
  std::string Start;
  std::vector<std::string> Rests;
};

const std::vector<OddValues> kOddValues = {
    {"[Values]\r\n",
     Split(";0=100\r\n ; 1=50|00=100|5=100\r\n-1=5|0=100|0=100\r\n0=200|0==1+2\r\n1=a=b|0=\" 5 \"\r\n1='a'|"
           "0=\"\r\n1='a|0=\"\"|0=5;6|0=abc|0=\x80"
           "5 \xBD|0=\xC2\xBD|2=100\r\n4=-50|2=40\r\n4=-20|"
           "2=1e308\r\n3=1e308\r\n4=1",
           "|")},
    {"[Main]\r\nLeft=",
     Split(
         "-5\r\nTop=-0.001|21001\r\nTop=1e999|21000\r\nTop=15000|1\r\nTop=15001|left\r\nTop=top|150 twips\r\nTop=3e2x|"
         "1e-999\r\nTop=.0|0x96\r\nTop=NaN",
         "|")},
    {"[Upgrade]\r\nAuto=", Split("2|0.5|1 = yes|true|3|-1|1e999", "|")}};

TEST(BadSettings, BringUpWhatThePlainReaderFinds) {
  Tally tally("settings files");
  for (const std::string& file : kOddFiles)
    tally.Count(ExpectAsThePlainReader(file));
  for (const OddValues& odd : kOddValues) {
    for (const std::string& rest : odd.Rests)
      tally.Count(ExpectAsThePlainReader(odd.Start + rest + "\r\n"));
  }
  BadInputs inputs(5);
  for (int left = RandomInputs(10); left > 0 && !testing::Test::HasFailure(); --left)
    tally.Count(ExpectAsThePlainReader(inputs.SettingsFile()));
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
    EXPECT_EQ(TextOf(StartOf(stage)), "odds X:1, 0%; at 190,199; upgrade 0");
    EXPECT_TRUE(stage.Form.close());
    EXPECT_EQ(stage.Ends, 1);
  }
}

}  // namespace
}  // namespace quillon
