#include <gtest/gtest.h>

#include "cli/SilentBuildProgress.h"
#include "platform/Path.h"
#include "ui/main/GoCommand.h"
#include "ui/main/MainFakes.h"

namespace quorin::test {
namespace {

class NoSearchProgress final : public SearchProgress {
  public:
    void Show(int) override {}
    void SetValue(int) override {}
    void Hide() override {}
};

class GoCommandTest : public ProgramFixture {
  protected:
    GoCommandTest() {
        tree.WriteFile("budget 2026.xls", "");
        tree.WriteFile("docs\\budget notes.txt", "");
        tree.WriteFile("docs\\plan.txt", "");
        SilentBuildProgress window;
        index.Get().CreateIndex(true, window);
    }
    GoAction Go(std::string_view word) { return DecideGo(index.Get(), word, progress); }

    NoSearchProgress progress;
};

TEST_F(GoCommandTest, OneMatchOpensInItsFolderWithoutASeparator) {
    const GoAction action = Go("PLAN");
    EXPECT_EQ(action.kind, GoAction::Kind::OpenMatch);
    EXPECT_EQ(action.file, JoinPath(JoinPath(tree.Path(), "docs"), "plan.txt"));
    EXPECT_EQ(action.workingFolder, JoinPath(tree.Path(), "docs"));
}

TEST_F(GoCommandTest, SeveralMatchesGoToTheChooserNoneIsToldAndAnEmptyBoxDoesNothing) {
    const GoAction several = Go("budget");
    EXPECT_EQ(several.kind, GoAction::Kind::ChooseMatch);
    ASSERT_TRUE(several.matches);
    EXPECT_EQ(several.matches->Count(), 2);
    EXPECT_EQ(Go("zebra").kind, GoAction::Kind::NoMatch);
    EXPECT_EQ(Go("").kind, GoAction::Kind::None);
}

TEST_F(GoCommandTest, AnAssignedWordComesFirstAndOpensInItsFolderWithASeparator) {
    const GoAction match = Go("plan");
    clsItem item;
    item.Word = "budget";
    item.Filename = "plan.txt";
    item.Directory = index.Get().GetDirectory(JoinPath(tree.Path(), "docs")).value();
    index.Get().AddWord(item);

    const GoAction action = Go("BUDGET");
    EXPECT_EQ(action.kind, GoAction::Kind::OpenAssigned) << "before the two index matches";
    EXPECT_EQ(action.file, match.file);
    EXPECT_EQ(action.workingFolder, match.workingFolder + kPathSeparator);
}

}  // namespace
}  // namespace quorin::test
