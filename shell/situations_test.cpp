#include "shell/situations.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/files.h"
#include "testing/fault_of.h"
#include "testing/file_calls.h"
#include "testing/range_texts.h"
#include "testing/recorded_input.h"
#include "testing/recorded_messages.h"
#include "testing/temporary_program.h"

namespace quillon {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

const ScreenSituation kShove = {AnalysisMode::kPreflopRaise, {"1.5", "=1-0.5", "9", "Any", "Tight"}};
constexpr std::string_view kShoveLine =
    "{\"mode\":\"raise\",\"pot\":\"1.5\",\"call\":\"=1-0.5\",\"shove\":\"9\",\"range\":\"Any\",\"calling_range\":"
    "\"Tight\"}\n";

class Situations : public testing::Test {
 protected:
  Situations() {
    program_.Write("Any.txt", EveryHandAt(1) + "\r\n");
    program_.Write("Tight.txt", TextWith("AA KK") + "\r\n");
  }

  [[nodiscard]] const ProgramFolder& Folder() const { return program_.Folder(); }
  void Put(std::string_view fileName, std::string_view bytes) const {
    fs::create_directory(SituationFolderPath(Folder()));
    quillon::Put(SituationFolderPath(Folder()) / PathOf(fileName), bytes);
  }
  [[nodiscard]] std::string Bytes(std::string_view name) const {
    return ReadAllBytes(SituationFilePath(Folder(), name));
  }

  std::optional<std::string> Save(const std::string& answer, const ScreenSituation& situation = kShove) {
    inputs_.Answers = {answer};
    return AskAndSaveSituation(situation, "Last", Folder(), std::ref(inputs_), messages_);
  }
  std::optional<OpenedSituation> Open(std::string_view name) { return OpenSituation(name, Folder(), messages_); }

  TemporaryProgram program_;
  RecordedInput inputs_;
  RecordedMessages messages_;
};

Message Stop(std::string title, std::string text) {
  return {std::move(title), std::move(text), MessageIcon::kStop, MessageButtons::kOk};
}

Message AskToReplace(const std::string& name) {
  return {"Replace?", "A situation with the name \"" + name + "\" already exists.\r\n\r\nDo you want to replace it?",
          MessageIcon::kQuestion, MessageButtons::kYesNo};
}

// ---- saving

TEST_F(Situations, AreSavedUnderTheNameAskedFor) {
  EXPECT_EQ(Save(""), std::nullopt) << "cancelled";
  EXPECT_FALSE(fs::exists(SituationFolderPath(Folder())));
  inputs_.Asked.clear();
  EXPECT_EQ(Save("Button 12"), "Button 12");
  EXPECT_THAT(inputs_.Asked,
              ElementsAre(InputQuestion{"What do you want to call this situation?", "Save Situation", "Last"}));
  EXPECT_THAT(messages_.Shown, IsEmpty());
  EXPECT_EQ(Bytes("Button 12"), kShoveLine);
  EXPECT_EQ(SituationFilePath(Folder(), "Button 12"), Folder().Path / "Situations" / "Button 12.json");
}

struct NameCase {
  const char* rule;
  std::string name;
  std::optional<Message> refusal;
};

TEST_F(Situations, HaveNamesThatAFileCanHave) {
  const Message forbidden =
      Stop("Quillon", "The following characters are not allowed in the situation name: \r\n\r\n/\\:*?\"<>|");
  const Message tooLong = Stop("Error", "Your situation name is too long. Please choose a shorter one.");
  const std::vector<NameCase> cases = {
      {"a way out of the folder", "../settings", forbidden},
      {"as long as a file's name can be with its extension", std::string(250, 'x'), std::nullopt},
      {"a byte too long", std::string(251, 'x'), tooLong},
      {"the first complaint is the one", std::string(251, ':'), forbidden},
  };
  for (const NameCase& c : cases) {
    messages_.Shown.clear();
    EXPECT_EQ(Save(c.name).has_value(), !c.refusal.has_value()) << c.rule;
    if (c.refusal) {
      EXPECT_THAT(messages_.Shown, ElementsAre(*c.refusal)) << c.rule;
    } else {
      EXPECT_EQ(Bytes(c.name), kShoveLine) << c.rule;
    }
  }
}

TEST_F(Situations, AreReplacedOnYesAlone) {
  Put("Old.json", "");
  messages_.Answers = {MessageAnswer::kNo, MessageAnswer::kYes};
  EXPECT_EQ(Save("Old"), std::nullopt);
  EXPECT_EQ(Bytes("Old"), "");
  EXPECT_EQ(Save("Old"), "Old");
  EXPECT_EQ(Bytes("Old"), kShoveLine);
  EXPECT_THAT(messages_.Shown, ElementsAre(AskToReplace("Old"), AskToReplace("Old")));
}

TEST_F(Situations, ThatCouldNotBeReadAreNotSaved) {
  EXPECT_EQ(Save("Long", {AnalysisMode::kPreflopCall, {std::string(1001, '1'), {}, {}, {}, {}}}), std::nullopt);
  EXPECT_THAT(messages_.Shown,
              ElementsAre(Stop("Error", "This situation cannot be saved: \"pot\" has more than 1000 bytes.")));
  EXPECT_THAT(inputs_.Asked, IsEmpty());
}

// ---- the list

TEST_F(Situations, AreListedWithoutRegardToCase) {
  EXPECT_THAT(SituationNames(Folder()), IsEmpty()) << "there is no folder yet";
  quillon::Put(SituationFolderPath(Folder()), "a file in its place");
  EXPECT_EQ(FaultOf([&] { return SituationNames(Folder()); }), RunTimeFault::kPathNotFound);
  fs::remove(SituationFolderPath(Folder()));
  for (const char* file : {"b.json", "A.json", "Ä.json", "a 2.json", "C.json", "Käse.json"})
    Put(file, "");
  for (const char* other : {"notes.txt", "D.JSON", "json", ".json", ".quillon-1-0.tmp", "E.json~"})
    Put(other, "");
  fs::create_directory(SituationFolderPath(Folder()) / "folder.json");
  EXPECT_THAT(SituationNames(Folder()), ElementsAre("A", "a 2", "b", "C", "Käse", "Ä"));
}

// ---- opening

TEST_F(Situations, ComeBackAsTheyWereSaved) {
  ASSERT_EQ(Save("Käse"), "Käse");
  const auto opened = Open("Käse");
  ASSERT_TRUE(opened);
  ScreenSituation expected = kShove;
  expected.Entered.Call = "0.5";  // evaluated, as when leaving its box
  EXPECT_EQ(TextOfSituation(opened->Situation).Line, TextOfSituation(expected).Line);
  EXPECT_EQ(opened->Remarks, std::nullopt);
  Put("New.json", R"({"mode":"call","pot":"","call":"","range":""})");
  EXPECT_EQ(Open("New")->Remarks, std::nullopt) << "the blank entry";
  EXPECT_THAT(messages_.Shown, IsEmpty());
}

TEST_F(Situations, TellWhatTheScreenDoesNotTake) {
  Put("Sent.json", R"({"id":7,"mode":"raise","pot":3,"call":1,"shove":9,"range":"Tihgt","calling_hands":"22+"})");
  const auto opened = Open("Sent");
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->Situation.Entered.Pot, "3");
  EXPECT_EQ(opened->Situation.Entered.Range, "");
  EXPECT_EQ(opened->Situation.Entered.CallingRange, "");
  const std::string text =
      "The situation \"Sent\" is open. Some of the file cannot be used:\r\n"
      "\r\n- \"id\" has no place on a screen"
      "\r\n- \"calling_hands\" is a notation, and the list takes only ranges with a name: 22+"
      "\r\n- There is no range \"Tihgt\" in " +
      RangeFolderPath(Folder()).string() + ". The nearest names: \"Tight\", \"Any\"";
  EXPECT_EQ(opened->Remarks, (Message{"Quillon", text, MessageIcon::kExclamation, MessageButtons::kOk}));
}

struct UnreadCase {
  const char* name;
  std::optional<std::string> bytes;
  const char* reason;
};

TEST_F(Situations, ThatCannotBeReadAreTold) {
  const std::vector<UnreadCase> cases = {
      {"missing", std::nullopt, "its file is missing, empty or unreadable"},
      {"empty", "", "its file is missing, empty or unreadable"},
      {"no JSON", "pot 3", "this is not JSON from byte 1 on: p"},
      {"no mode", R"({"pot":3})", "\"mode\" is missing"},
  };
  for (const UnreadCase& c : cases) {
    const std::string file = std::string(c.name) + ".json";
    if (c.bytes) Put(file, *c.bytes);
    messages_.Shown.clear();
    EXPECT_FALSE(Open(c.name)) << c.name;
    EXPECT_THAT(messages_.Shown, ElementsAre(Stop("Error", "The situation \"" + std::string(c.name) +
                                                               "\" cannot be opened: " + c.reason + ".\r\n\r\n" +
                                                               SituationFilePath(Folder(), c.name).string())));
  }
}

TEST_F(Situations, WhoseFileFailsToBeReadAreToldAtEachCall) {
  ASSERT_EQ(Save("Broken"), "Broken");
  int told = 0;
  bool reached = true;
  for (int call = 0; reached; ++call) {
    FailingCalls calls(call);
    messages_.Shown.clear();
    const bool opened = OpenSituation("Broken", {Folder().Path, &calls}, messages_).has_value();
    EXPECT_EQ(messages_.Shown.size(), opened ? 0U : 1U) << call;
    told += opened ? 0 : 1;
    reached = calls.HasFailed();
  }
  EXPECT_GT(told, 1) << "opening and reading";
}

// ---- deleting

TEST_F(Situations, AreDeletedOnYesAlone) {
  Put("Old.json", "old");
  messages_.Answers = {MessageAnswer::kNo, MessageAnswer::kCancel, MessageAnswer::kYes, MessageAnswer::kYes};
  EXPECT_FALSE(AskAndDeleteSituation("Old", Folder(), messages_));
  EXPECT_FALSE(AskAndDeleteSituation("Old", Folder(), messages_));
  EXPECT_TRUE(fs::exists(SituationFilePath(Folder(), "Old")));
  EXPECT_TRUE(AskAndDeleteSituation("Old", Folder(), messages_));
  EXPECT_FALSE(fs::exists(SituationFilePath(Folder(), "Old")));
  EXPECT_TRUE(AskAndDeleteSituation("Old", Folder(), messages_)) << "somebody else has deleted it";
  EXPECT_EQ(messages_.Shown.front(), (Message{"Delete?", "Do you really want to delete \"Old\"?",
                                              MessageIcon::kQuestion, MessageButtons::kYesNoCancel}));
}

}  // namespace
}  // namespace quillon
