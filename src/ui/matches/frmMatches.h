#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "index/MatchList.h"
#include "platform/WinHandles.h"
#include "ui/Window.h"
#include "ui/matches/MatchRows.h"
#include "ui/matches/MatchesLayout.h"
#include "ui/matches/MatchesSort.h"
#include "ui/matches/ctlIconExtractor.h"

namespace quorin {

class clsIndex;
class Prompter;
class SettingsStore;
class Shell;

// What the Matches window works with. All of it must outlive the window.
struct MatchesHost {
    clsIndex& index;
    Shell& shell;
    SettingsStore& settings;  // section "Matches" keeps the window's place
    Prompter& prompter;
    std::function<void()> AddWords;  // refreshes the main window's word list after an assignment
    HICON icon = nullptr;            // the main window's icon
};

// Opens the "Multiple Matches" window for a typed word and the files it matched, modeless, and
// returns it. The window owns itself: it goes when the user opens a row or closes it.
HWND ShowMatches(const std::string& word, MatchList matches, const MatchesHost& host);

inline constexpr wchar_t kMatchesClass[] = L"QuorinMatches";
inline constexpr int kMatchesLabelId = 100;
inline constexpr int kMatchesListId = 101;
inline constexpr int kMatchesAssociateId = 102;
inline constexpr int kMatchesOpenId = IDOK;  // so that Enter anywhere in the window opens

// The chooser that lists several matches with their icons, name and folder, sorts them by a
// column click and opens the chosen one through the shell, assigning the typed word to it when
// the check box says so. The list holds no rows of its own: it asks for a row's texts and icon
// when it draws the row, so that any number of matches opens at once. The rows' order is the
// window's (MatchRows); each distinct icon is extracted once, when a row first needs it.
class frmMatches final : public Window {
  public:
    // Made by the window itself (see Load); public for that only.
    frmMatches() = default;

    // Creates the window hidden, at its saved place; it owns itself from then on.
    static frmMatches& Load(const MatchesHost& host);

    void Show();
    void Word(std::string word) { word_ = std::move(word); }
    // Fills the list, one row per match in collection order, and selects the first row.
    void Matches(MatchList matches);

  protected:
    LRESULT HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool OnCreate(const CREATESTRUCTW& create) override;
    void OnDestroy() override { Form_Unload(); }
    void OnSize(UINT, int, int) override { Form_Resize(); }
    void OnCommand(int id, int code, HWND control) override;
    void OnTimer(UINT_PTR id) override;
    LRESULT OnNotify(const NMHDR& header) override;
    void OnDpiChanged(int dpi, const RECT& suggested) override;

  private:
    void Form_Load(const MatchesHost& host);
    void Form_Resize();
    void Form_Unload();
    void cmdOpen_Click();
    void lvwItems_DblClick();
    void lvwItems_KeyPress(int key);
    void lvwItems_ColumnClick(int column);
    LRESULT lvwItems_FindItem(const NMLVFINDITEMW& find) const;

    void CreateControls();
    TwipsSize AssociateSize() const;
    void RestorePlace();
    void ShowRow(LVITEMW& item);
    LRESULT DrawRow(NMLVCUSTOMDRAW& draw) const;
    std::optional<int> RowImage(int row);
    std::optional<int> BlankImage();
    void SelectRow(int row);
    std::optional<int> SelectedRow() const;
    void OpenRow(int row);
    void SortRows();
    void ShowSortArrow();
    void Unload();

    std::optional<MatchesHost> host_;
    std::string word_;
    std::optional<MatchList> matches_;
    MatchRows rows_;
    std::unordered_map<std::string, std::optional<int>> images_;  // by ctlIconExtractor::ImageKey
    std::optional<int> blankImage_;
    MatchesSort sort_;
    int dpi_ = USER_DEFAULT_SCREEN_DPI;

    HWND Label1 = nullptr;
    HWND lvwItems = nullptr;
    HWND chkAssociate = nullptr;
    HWND cmdOpen = nullptr;
    UniqueFont font_;
    UniqueImageList imlLarge;
    UniqueImageList imlSmall;
    ctlIconExtractor ctlIconExtractor1;
};

}  // namespace quorin
