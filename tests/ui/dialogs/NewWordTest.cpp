#include <gtest/gtest.h>

#include "DialogTestHelpers.h"
#include "NewWordDialog.h"
#include "cli/SilentBuildProgress.h"
#include "platform/Path.h"
#include "platform/TextFile.h"
#include "support/ReaderNames.h"
#include "ui/WindowText.h"
#include "ui/dialogs/frmNewWord.h"
#include "ui/main/MainFakes.h"

namespace quorin::test {
namespace {

class NewWordTest : public ProgramFixture {
  protected:
    NewWordTest() { file = tree.WriteFile("docs\\plan.txt", "plan"); }

    HWND Field(int id) const { return GetDlgItem(dialog.hwnd(), id); }
    void Type(int id, std::string_view text) const { SetText(Field(id), text); }
    void Click(int id) const { ClickItem(dialog.hwnd(), id); }

    std::string file;
    FakeFileChooser files;
    frmNewWord dialog{NewWordServices{index.Get(), prompter, files, nullptr}};
};

TEST_F(NewWordTest, RefusesWhatItCannotAddAtTheFieldToFixKeepsTheLastBrowseAndTakesAWildcard) {
    index.Get().AddWord({"notes", "old.txt", 0, "NOTES"});
    dialog.ShowModeless(nullptr);
    SetForegroundWindow(dialog.hwnd());
    EXPECT_EQ(WindowText(dialog.hwnd()), "Add New Word");
    EXPECT_EQ(UnnamedControls(dialog.hwnd()), std::vector<std::string>{});
    EXPECT_EQ(GetFocus(), Field(IDC_NEWWORD_WORD)) << "the first control has the focus";
    Type(IDC_NEWWORD_WORD, "   ");
    HDC dc = GetDC(Field(IDC_NEWWORD_WORD));
    EXPECT_EQ(SendMessageW(dialog.hwnd(), WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc),
                           reinterpret_cast<LPARAM>(Field(IDC_NEWWORD_WORD))),
              reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_INFOBK)));
    ReleaseDC(Field(IDC_NEWWORD_WORD), dc);
    PressKey(VK_TAB);
    EXPECT_EQ(GetFocus(), Field(IDC_NEWWORD_FILENAME));
    Type(IDC_NEWWORD_FILENAME, JoinPath(tree.Path(), "missing.txt"));
    PressKey(VK_RETURN);
    Type(IDC_NEWWORD_WORD, "plan");
    Click(IDOK);
    Type(IDC_NEWWORD_FILENAME, JoinPath(tree.Path(), "docs"));
    Click(IDOK);
    std::vector<std::string> boxes;
    for (const ScriptedPrompter::Box& box : prompter.boxes) {
        boxes.push_back(box.title + ": " + box.text);
    }
    EXPECT_EQ(boxes, (std::vector<std::string>{"Cannot add: Pleae enter a word to assign.",
                                               "Cannot add: That is not a valid filename.",
                                               "Cannot add: That is not a valid filename."}))
        << "Enter presses OK; a folder is not a file";
    EXPECT_EQ(prompter.boxes[0].icon, PromptIcon::Information);
    EXPECT_EQ(GetFocus(), Field(IDC_NEWWORD_FILENAME));

    Type(IDC_NEWWORD_WORD, "NOTES");
    Type(IDC_NEWWORD_FILENAME, file);
    Click(IDOK);
    ASSERT_EQ(prompter.boxes.size(), 4u);
    EXPECT_NE(prompter.boxes[3].text.find("'NOTES'"), std::string::npos) << prompter.boxes[3].text;
    EXPECT_EQ(GetFocus(), Field(IDC_NEWWORD_WORD));
    EXPECT_TRUE(IsWindow(dialog.hwnd())) << "the dialog stays open";
    EXPECT_EQ(index.Get().Words().Item("notes")->Filename, "old.txt");

    files.answer = JoinPath(JoinPath(tree.Path(), "docs"), "*.TXT");
    Click(IDC_NEWWORD_BROWSE);
    EXPECT_EQ(WindowText(Field(IDC_NEWWORD_FILENAME)), files.answer);
    EXPECT_EQ(files.filters.back(), "All files (*.*)|*.*");
    files.answer.clear();  // cancelled: the earlier choice comes back
    Type(IDC_NEWWORD_FILENAME, "typed over");
    Click(IDC_NEWWORD_BROWSE);
    EXPECT_EQ(files.starts.back(), JoinPath(JoinPath(tree.Path(), "docs"), "*.TXT"));
    Type(IDC_NEWWORD_WORD, "plans");
    Click(IDOK);
    EXPECT_FALSE(IsWindow(dialog.hwnd()));
    ASSERT_NE(index.Get().Words().Item("plans"), nullptr);
    EXPECT_EQ(index.Get().Words().Item("plans")->Filename, "*.TXT");
}

// Escape cancels the first time; the second, OK assigns the word with its blanks to the file.
TEST_F(NewWordTest, AsAModalOverItsOwnerAssignsTheWordAsTypedToTheFile) {
    SilentBuildProgress progress;
    index.Get().CreateIndex(true, progress);
    // Hidden: a shown window costs Wine seconds to close without a window manager.
    const HWND owner = CreateWindowExW(0, L"STATIC", L"owner", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100,
                                       nullptr, nullptr, nullptr, nullptr);
    WhenLoopRuns([&] {
        Type(IDC_NEWWORD_WORD, "x");
        Type(IDC_NEWWORD_FILENAME, file);
        SetFocus(Field(IDC_NEWWORD_FILENAME));
        PressKey(VK_ESCAPE);
    });
    EXPECT_EQ(dialog.ShowModal(owner), IDCANCEL);
    EXPECT_EQ(index.Get().Words().Count(), 0);
    bool ownerEnabled = true;
    WhenLoopRuns([&] {
        ownerEnabled = IsWindowEnabled(owner) != FALSE;
        Type(IDC_NEWWORD_WORD, " my plan ");
        Type(IDC_NEWWORD_FILENAME, file);
        Click(IDOK);
        if (!prompter.boxes.empty()) {
            Click(IDCANCEL);  // refused: ends the loop all the same
        }
    });
    EXPECT_EQ(dialog.ShowModal(owner), IDOK);
    EXPECT_FALSE(ownerEnabled);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_FALSE(IsWindow(dialog.hwnd()));
    DestroyWindow(owner);
    EXPECT_TRUE(prompter.boxes.empty());
    const clsItem* item = index.Get().Words().Item(" my plan ");
    ASSERT_NE(item, nullptr) << "the word keeps its blanks";
    EXPECT_EQ(item->Filename, "plan.txt");
    EXPECT_EQ(index.Get().GetPath(item->Directory), JoinPath(tree.Path(), "docs"));
    EXPECT_TRUE(FileExists(JoinPath(program.Path(), "words.txt"))) << "saved at once";
}

}  // namespace
}  // namespace quorin::test
