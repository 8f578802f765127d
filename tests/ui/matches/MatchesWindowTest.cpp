#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cli/SilentBuildProgress.h"
#include "index/clsIndex.h"
#include "platform/Clock.h"
#include "platform/MemorySettingsStore.h"
#include "platform/Text.h"
#include "platform/registry/ScratchClasses.h"
#include "support/Fakes.h"
#include "support/ReaderNames.h"
#include "support/TempFolder.h"
#include "ui/Dpi.h"
#include "ui/MessagePump.h"
#include "ui/WindowText.h"
#include "ui/dialogs/DialogTestHelpers.h"
#include "ui/matches/MatchesLayout.h"
#include "ui/matches/frmMatches.h"

namespace quorin {
namespace {

// Three files match "plan": a registered type, an unknown one and a program.
constexpr char kIndexFile[] =
    "2023-03-15 12:00:00\r\n 3\r\nC:\\Work\r\nC:\\Archive\r\nC:\\Music\r\n"
    " 0\r\nPlan B.qzp\r\n 1\r\nplan a.qzx\r\n 1\r\nother.txt\r\n 2\r\nPlans.exe\r\n";

std::wstring Cell(HWND list, int row, int column) {
    wchar_t text[MAX_PATH] = {};
    ListView_GetItemText(list, row, column, text, MAX_PATH);
    return text;
}

std::vector<std::string> Column(HWND list, int column) {
    std::vector<std::string> texts;
    for (int row = 0; row < ListView_GetItemCount(list); ++row) {
        texts.push_back(Narrow(Cell(list, row, column)));
    }
    return texts;
}

int RowImage(HWND list, int row) {
    LVITEMW item{};
    item.mask = LVIF_IMAGE;
    item.iItem = row;
    ListView_GetItem(list, &item);
    return item.iImage;
}

void SelectRow(HWND list, int row) {
    const UINT state = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(list, row, state, state);
}

// Hidden windows ignore synthetic mouse clicks under Wine, so the tests send what the
// controls would send for a click.
void ClickColumn(HWND list, int column) {
    NMLISTVIEW click{};
    click.hdr = {list, static_cast<UINT_PTR>(kMatchesListId), LVN_COLUMNCLICK};
    click.iItem = -1;
    click.iSubItem = column;
    SendMessageW(GetParent(list), WM_NOTIFY, kMatchesListId, reinterpret_cast<LPARAM>(&click));
}

// The key as the program's message loop hands it over: to the dialog manager first.
bool DialogKey(HWND form, HWND target, WPARAM key) {
    MSG message{target, WM_KEYDOWN, key, 1, 0, {}};
    return IsDialogMessageW(form, &message) != FALSE;
}

TwipsSize OuterTwips(HWND window) {
    RECT frame{};
    GetWindowRect(window, &frame);
    const int dpi = WindowDpi(window);
    return {PixelsToTwips(frame.right - frame.left, dpi),
            PixelsToTwips(frame.bottom - frame.top, dpi)};
}

// The height the control's text takes, wrapped at the control's width, in its own font.
int TextHeight(HWND control) {
    RECT area{};
    GetClientRect(control, &area);
    const HDC dc = GetDC(control);
    const HGDIOBJ old =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(control, WM_GETFONT, 0, 0)));
    DrawTextW(dc, Widen(WindowText(control)).c_str(), -1, &area,
              DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    SelectObject(dc, old);
    ReleaseDC(control, dc);
    return area.bottom - area.top;
}

class MatchesWindowTest : public ::testing::Test {
  protected:
    MatchesWindowTest() {
        classes_.RegisterType(".qzp", "QuorinTest.Plan", "Quorin plan",
                              "%SystemRoot%\\system32\\shell32.dll,-152");
        program_.WriteFile("index.txt", kIndexFile);
        index_ = std::make_unique<clsIndex>(
            IndexServices{settings_, clock_, prompter_, events_, program_.Path()});
    }

    MatchesHost Host() {
        return {*index_, shell_, settings_, prompter_, [this] { ++wordListRefreshes_; }, nullptr};
    }

    // The window as Go leaves it, but hidden.
    HWND Load(std::string word, MatchList matches) {
        frmMatches& form = frmMatches::Load(Host());
        form.Word(std::move(word));
        form.Matches(std::move(matches));
        return form.hwnd();
    }
    HWND Load() { return Load("plan", *index_->FindMatch("plan")); }

    static HWND List(HWND form) { return GetDlgItem(form, kMatchesListId); }

    std::string Saved(std::string_view key) const { return settings_.Get("Matches", key, "-"); }
    void SavePlace(const std::string& left, const std::string& top, const std::string& width,
                   const std::string& height) {
        settings_.Save("Matches", "Left", left);
        settings_.Save("Matches", "Top", top);
        settings_.Save("Matches", "Width", width);
        settings_.Save("Matches", "Height", height);
    }

    ScratchClasses classes_;
    TempFolder program_;
    MemorySettingsStore settings_;
    SystemClock clock_;
    test::ScriptedPrompter prompter_;
    MessagePump events_;
    test::RecordingShell shell_;
    std::unique_ptr<clsIndex> index_;
    int wordListRefreshes_ = 0;
};

// The matches in collection order, the first selected. The word goes to the match at the selected
// row's position in the collection, in the folder the row showed even after a rebuild has numbered
// the folders anew; the row's own file opens.
TEST_F(MatchesWindowTest, ListsTheMatchesAndTheWordGoesToTheRowsPositionWhileTheRowsOwnFileOpens) {
    const HWND form = Load();
    const HWND list = List(form);
    EXPECT_EQ(UnnamedControls(form), std::vector<std::string>{}) << "a reader names each";
    EXPECT_EQ(WindowText(GetDlgItem(form, kMatchesLabelId)),
              "3 matches found. Please choose from the following.");
    EXPECT_EQ(WindowText(form), "Multiple Matches");

    EXPECT_EQ(Column(list, 0), (std::vector<std::string>{"Plan B.qzp", "plan a.qzx", "Plans.exe"}));
    EXPECT_EQ(Column(list, 1), (std::vector<std::string>{"C:\\Work", "C:\\Archive", "C:\\Music"}));
    EXPECT_EQ(ListView_GetNextItem(list, -1, LVNI_SELECTED), 0);
    EXPECT_EQ(ListView_GetNextItem(list, 0, LVNI_SELECTED), -1);

    // Each icon is the next image of the list the rows draw from; the unknown type has a blank
    // one, so that its name lines up with the others.
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(RowImage(list, row), row);
    }
    EXPECT_EQ(ImageList_GetImageCount(ListView_GetImageList(list, LVSIL_SMALL)), 3);
    RECT named{};
    RECT blank{};
    ListView_GetItemRect(list, 0, &named, LVIR_LABEL);
    ListView_GetItemRect(list, 1, &blank, LVIR_LABEL);
    EXPECT_EQ(blank.left, named.left);

    // Tab goes round the list, the check box and Open.
    const HWND ring[] = {list, GetDlgItem(form, kMatchesAssociateId),
                         GetDlgItem(form, kMatchesOpenId), list};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(GetNextDlgTabItem(form, ring[i], FALSE), ring[i + 1]) << i;
    }
    EXPECT_TRUE(prompter_.boxes.empty());

    SelectRow(list, 1);
    test::ClickItem(form, kMatchesOpenId);  // the box is clear: nothing is assigned
    EXPECT_EQ(index_->Words().Count(), 0);
    EXPECT_EQ(wordListRefreshes_, 0);
    EXPECT_FALSE(IsWindow(form));

    const HWND associated = Load();
    ClickColumn(List(associated), 0);  // the first click on Name sorts descending: plan a.qzx last
    const TempFolder drive;            // the rebuild makes C:\Music, folder 2 when filled, folder 1
    drive.MakeFolder("Sub");
    settings_.Save("Index", "DriveCount", "2");
    settings_.Save("Index", "Drive0", drive.Path());
    settings_.Save("Index", "Drive1", "C:\\Music");
    index_->UpdateSettings();
    SilentBuildProgress progress;
    index_->CreateIndex(true, progress);
    ASSERT_EQ(index_->GetDirectory("C:\\Music"), 1);
    SelectRow(List(associated), 2);
    Button_SetCheck(GetDlgItem(associated, kMatchesAssociateId), BST_CHECKED);
    test::ClickItem(associated, kMatchesOpenId);

    ASSERT_EQ(shell_.opened.size(), 2u);
    for (const test::RecordingShell::Opened& call : shell_.opened) {
        EXPECT_EQ(call.file, "C:\\Archive\\plan a.qzx");
        EXPECT_EQ(call.parameters, "");
        EXPECT_EQ(call.workingFolder, "C:\\Archive");
        EXPECT_EQ(call.showCommand, 5);
    }
    const clsItem* assigned = index_->Words().Item("PLAN");
    ASSERT_NE(assigned, nullptr);
    EXPECT_EQ(assigned->Word, "plan");
    EXPECT_EQ(assigned->Filename, "Plans.exe");
    EXPECT_EQ(index_->GetPath(assigned->Directory), "C:\\Music");
    EXPECT_EQ(wordListRefreshes_, 1);
    EXPECT_FALSE(IsWindow(associated));
}

// A double click, Enter on a row found by typing, and Enter through the dialog manager all open
// the row; Escape closes, saving the place.
TEST_F(MatchesWindowTest, TheMouseAndTheKeysOpenTheRowAndEscapeCloses) {
    MessagePump pump;
    const HWND clicked = Load();
    SelectRow(List(clicked), 1);  // the first click of the two
    RECT row{};
    ListView_GetItemRect(List(clicked), 1, &row, LVIR_LABEL);
    SendMessageW(List(clicked), WM_LBUTTONDBLCLK, MK_LBUTTON,
                 MAKELPARAM(row.left + 2, (row.top + row.bottom) / 2));
    pump.DoEvents();

    const HWND typed = Load();
    SendMessageW(List(typed), WM_CHAR, 'p', 1);  // the next name after the first row's
    SendMessageW(List(typed), WM_KEYDOWN, VK_RETURN, 1);
    SendMessageW(List(typed), WM_KEYUP, VK_RETURN, 1);
    pump.DoEvents();

    const HWND shown = ShowMatches("plan", *index_->FindMatch("plan"), Host());
    SelectRow(List(shown), 2);
    SetFocus(List(shown));
    EXPECT_TRUE(DialogKey(shown, List(shown), VK_RETURN));

    ASSERT_EQ(shell_.opened.size(), 3u);
    for (const HWND form : {clicked, typed, shown}) {
        EXPECT_FALSE(IsWindow(form));
    }
    EXPECT_EQ(shell_.opened[0].file, "C:\\Archive\\plan a.qzx");
    EXPECT_EQ(shell_.opened[1].file, "C:\\Archive\\plan a.qzx");
    EXPECT_EQ(shell_.opened[1].workingFolder, "C:\\Archive");
    EXPECT_EQ(shell_.opened[2].file, "C:\\Music\\Plans.exe");

    const HWND escaped = Load();
    EXPECT_TRUE(DialogKey(escaped, List(escaped), VK_ESCAPE));
    EXPECT_FALSE(IsWindow(escaped));
    EXPECT_EQ(shell_.opened.size(), 3u);
    EXPECT_NE(Saved("Width"), "-");
}

// Where the controls go at each size is MatchesLayoutTest's, and that they stay inside the window
// LayoutTest's; here the window keeps its place, inside the work area, and its minimum.
TEST_F(MatchesWindowTest, KeepsItsPlaceInTwipsInsideTheWorkAreaAndNeverSmallerThan3000) {
    MONITORINFO monitor{sizeof monitor, {}, {}, 0};
    GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &monitor);
    const RECT work = monitor.rcWork;
    const HWND designed = Load();  // never saved: in the middle of the screen
    const TwipsSize size = OuterTwips(designed);
    EXPECT_NEAR(size.width, kMatchesDesignedSize.width, 15);
    EXPECT_NEAR(size.height, kMatchesDesignedSize.height, 15);
    RECT frame{};
    GetWindowRect(designed, &frame);
    EXPECT_NEAR(frame.left - work.left, work.right - frame.right, 1);
    EXPECT_NEAR(frame.top - work.top, work.bottom - frame.bottom, 1);
    DestroyWindow(designed);
    EXPECT_EQ(Saved("Left"), std::to_string(PixelsToTwips(frame.left, ScreenDpi())));
    EXPECT_EQ(Saved("Top"), std::to_string(PixelsToTwips(frame.top, ScreenDpi())));
    EXPECT_EQ(Saved("Width"), std::to_string(size.width));
    EXPECT_EQ(Saved("Height"), std::to_string(size.height));

    // Saved partly beyond the bottom right corner, as a place saved at another DPI can be.
    const int dpi = ScreenDpi();
    SavePlace(std::to_string(PixelsToTwips(work.right - 100, dpi)),
              std::to_string(PixelsToTwips(work.bottom - 50, dpi)), "6000", "4500");
    const HWND moved = Load();
    GetWindowRect(moved, &frame);
    EXPECT_EQ(frame.right, work.right);
    EXPECT_EQ(frame.bottom, work.bottom);
    EXPECT_NEAR(OuterTwips(moved).width, 6000, 15) << "moved, not shrunk";
    DestroyWindow(moved);

    // Read back rounded, as the main window reads its place.
    SavePlace("1500", "1200.4", "6000.5", "4500");
    const HWND restored = Load();
    GetWindowRect(restored, &frame);
    EXPECT_NEAR(PixelsToTwips(frame.left, dpi), 1500, 15);
    EXPECT_NEAR(PixelsToTwips(frame.top, dpi), 1200, 15);
    EXPECT_NEAR(OuterTwips(restored).width, 6000, 15);
    EXPECT_NEAR(OuterTwips(restored).height, 4500, 15);

    SetWindowPos(restored, nullptr, 0, 0, 50, 40, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_GE(OuterTwips(restored).width, 3000);
    EXPECT_GE(OuterTwips(restored).height, 3000);
    EXPECT_LT(OuterTwips(restored).width, 3000 + 15);
    const RECT label = Window::RectInParent(GetDlgItem(restored, kMatchesLabelId));
    EXPECT_LE(TextHeight(GetDlgItem(restored, kMatchesLabelId)), label.bottom - label.top)
        << "the count fits its label";

    // Minimized, it saves its minimized place: no minimum is forced on it.
    ShowWindow(restored, SW_MINIMIZE);
    ASSERT_TRUE(IsIconic(restored));
    const TwipsSize minimized = OuterTwips(restored);
    DestroyWindow(restored);
    EXPECT_EQ(Saved("Width"), std::to_string(minimized.width));
    EXPECT_EQ(Saved("Height"), std::to_string(minimized.height));
    EXPECT_LT(minimized.height, 3000);
}

TEST_F(MatchesWindowTest, AFailureWhileFillingIsShownAndKeepsTheRowsSoFar) {
    auto items = std::make_shared<IndexItems>();
    items->Add("first.qzx", 0);
    const HWND window = Load("first", MatchList(items, {1, 7}));  // the second refers to no record

    ASSERT_EQ(prompter_.boxes.size(), 1u);
    EXPECT_EQ(prompter_.boxes[0].title, "Matches");
    EXPECT_FALSE(prompter_.boxes[0].text.empty());
    EXPECT_EQ(prompter_.boxes[0].buttons, PromptButtons::Ok);
    EXPECT_EQ(prompter_.boxes[0].icon, PromptIcon::Critical);
    EXPECT_EQ(Column(List(window), 0), std::vector<std::string>{"first.qzx"});
    DestroyWindow(window);
}

// Names that compare differently with and without regard to case, punctuation and digits, so
// that a sort that only looked like lstrcmpiW would show. A first click on a column sorts it
// ascending (on Name, descending: the association test), a second flips it. scripts/bench-ui
// times 100,000 rows.
TEST_F(MatchesWindowTest, EachColumnSortsBothWaysAsLstrcmpiWComparesAndStably) {
    static constexpr const char* kStems[] = {"Report", "report", "co-op", "coop", "Zeta",
                                             "alpha",  "Alpha",  "b_2",   "B-10", "\xC3\xA9mile"};
    constexpr int kRows = 1000;
    auto items = std::make_shared<IndexItems>();
    std::vector<int32_t> positions;
    for (int i = 0; i < kRows; ++i) {
        items->Add(std::string(kStems[i % 10]) + " " + std::to_string(i * 7919 % 1000) + ".qzx",
                   i % 3);
        positions.push_back(i + 1);
    }
    const HWND form = Load("many", MatchList(items, positions));
    EXPECT_EQ(WindowText(GetDlgItem(form, kMatchesLabelId)),
              "1000 matches found. Please choose from the following.");
    const HWND list = List(form);
    const struct {
        int column;
        int direction;
    } clicks[] = {{1, 1}, {1, -1}, {0, 1}, {0, -1}, {0, 1}};
    for (const auto& [column, direction] : clicks) {
        ClickColumn(list, column);
        if (column == 1 && direction == 1) {
            EXPECT_EQ(Cell(list, 0, 0), L"report 919.qzx") << "C:\\Archive's first: stable";
        }
        int wrong = 0;
        for (int row = 1; row < kRows; ++row) {
            wrong +=
                lstrcmpiW(Cell(list, row - 1, column).c_str(), Cell(list, row, column).c_str()) *
                    direction >
                0;
        }
        EXPECT_EQ(wrong, 0) << "column " << column << ", direction " << direction;
    }
    DestroyWindow(form);
}

}  // namespace
}  // namespace quorin
