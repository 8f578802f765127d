#include "ui/matches/frmMatches.h"

#include <commctrl.h>
#include <windowsx.h>

#include <chrono>
#include <iterator>
#include <utility>

#include "index/clsIndex.h"
#include "platform/Path.h"
#include "platform/Prompter.h"
#include "platform/SettingsStore.h"
#include "platform/Shell.h"
#include "platform/Text.h"
#include "platform/WinHandles.h"
#include "ui/Dpi.h"
#include "ui/Hourglass.h"
#include "ui/ListViewColumn.h"
#include "ui/RememberedPlace.h"
#include "ui/SmallIconList.h"
#include "ui/WindowClass.h"
#include "ui/WindowText.h"
#include "ui/matches/MatchesLayout.h"
#include "ui/matches/TypedRow.h"

namespace quorin {
namespace {

constexpr std::string_view kSection = "Matches";
constexpr PlaceKeys kPlaceKeys{
    .section = kSection, .left = "Left", .top = "Top", .width = "Width", .height = "Height"};
constexpr int kCheckBoxPixels = 20;  // a check box's box and gap before its caption, at 96 DPI

// The list's double-click and Enter run once the list view has returned from its notification,
// since opening a row destroys the list.
constexpr UINT kListDoubleClick = WM_APP + 1;
constexpr UINT kListKeyPress = WM_APP + 2;

constexpr UINT_PTR kRankNamesTimer = 1;
constexpr std::chrono::milliseconds kRankNamesStep{8};

void RegisterMatchesClass() {
    static const ATOM atom = [] {
        INITCOMMONCONTROLSEX controls{sizeof controls, ICC_LISTVIEW_CLASSES};
        InitCommonControlsEx(&controls);
        return RegisterWindowClass(
            {.name = kMatchesClass, .procedure = &Window::SelfOwnedProcedure<frmMatches>});
    }();
    static_cast<void>(atom);
}

void Place(HWND control, const TwipsRect& rect, int dpi) {
    MoveWindow(control, TwipsToPixels(rect.left, dpi), TwipsToPixels(rect.top, dpi),
               TwipsToPixels(rect.width, dpi), TwipsToPixels(rect.height, dpi), TRUE);
}

// The fewest pixels that measure at least `twips`, so that a window grown to the minimum is not
// found below it again after rounding.
int PixelsCovering(int twips, int dpi) {
    int pixels = TwipsToPixels(twips, dpi);
    while (PixelsToTwips(pixels, dpi) < twips) {
        ++pixels;
    }
    return pixels;
}

}  // namespace

HWND ShowMatches(const std::string& word, MatchList matches, const MatchesHost& host) {
    frmMatches& form = frmMatches::Load(host);
    // The form may be gone after filling: a failure's message box lets the user close it.
    const HWND window = form.hwnd();
    form.Show();
    form.Word(word);
    form.Matches(std::move(matches));
    return window;
}

frmMatches& frmMatches::Load(const MatchesHost& host) {
    RegisterMatchesClass();
    MatchesHost creation = host;
    const int dpi = ScreenDpi();
    const HWND window = CreateHandle(kMatchesClass,
                                     {.title = "Multiple Matches",
                                      .style = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                                      .width = TwipsToPixels(kMatchesDesignedSize.width, dpi),
                                      .height = TwipsToPixels(kMatchesDesignedSize.height, dpi)},
                                     &creation);
    return *static_cast<frmMatches*>(FromHandle(window));
}

void frmMatches::Show() {
    ShowWindow(hwnd(), SW_SHOWNORMAL);
    SetForegroundWindow(hwnd());
    SetFocus(lvwItems);
}

void frmMatches::Matches(MatchList matches) {
    const Hourglass busy;
    SetText(Label1,
            std::to_string(matches.Count()) + " matches found. Please choose from the following.");
    UpdateWindow(hwnd());
    matches_ = std::move(matches);
    try {
        rows_.Fill(*matches_, [this](int32_t folder) { return host_->index.GetPath(folder); });
    } catch (const std::exception& error) {
        // The rows so far stay.
        ListView_SetItemCount(lvwItems, rows_.Count());
        host_->prompter.Ask(kSection, error.what(), PromptButtons::Ok, PromptIcon::Critical);
        return;
    }
    ListView_SetItemCount(lvwItems, rows_.Count());
    SelectRow(0);
    // The names are ranked for sorting while the user looks at the list: a timer's turn comes
    // after input and painting.
    SetTimer(hwnd(), kRankNamesTimer, USER_TIMER_MINIMUM, nullptr);
}

void frmMatches::OnTimer(UINT_PTR id) {
    if (id == kRankNamesTimer && rows_.RankNames(kRankNamesStep)) {
        KillTimer(hwnd(), kRankNamesTimer);
    }
}

LRESULT frmMatches::HandleMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SETFOCUS:
            SetFocus(lvwItems);
            return 0;
        case kListDoubleClick:
            lvwItems_DblClick();
            return 0;
        case kListKeyPress:
            lvwItems_KeyPress(static_cast<int>(wParam));
            return 0;
        default:
            return Window::HandleMessage(message, wParam, lParam);
    }
}

bool frmMatches::OnCreate(const CREATESTRUCTW& create) {
    Form_Load(*static_cast<const MatchesHost*>(create.lpCreateParams));
    return true;
}

void frmMatches::OnDpiChanged(int dpi, const RECT& suggested) {
    dpi_ = dpi;
    font_ = SetMessageFont(hwnd(), dpi_);  // the controls let go of the old font first
    Window::OnDpiChanged(dpi, suggested);
}

void frmMatches::Form_Load(const MatchesHost& host) {
    host_.emplace(host);
    dpi_ = WindowDpi(hwnd());
    CreateControls();
    font_ = SetMessageFont(hwnd(), dpi_);
    RestorePlace();

    imlLarge = SmallIconList(dpi_);
    imlSmall = SmallIconList(dpi_);
    // Crossed on purpose: the extractor answers with the index in the list it was given as
    // large, and that list is the one the rows take their small icons from. Both lists get the
    // same image at the same index.
    ctlIconExtractor1.ImageListSmall(imlLarge.get());
    ctlIconExtractor1.ImageListLarge(imlSmall.get());
    ListView_SetImageList(lvwItems, imlSmall.get(), LVSIL_SMALL);

    SetIcon(host.icon);
}

// The offsets were drawn for a window measured with the designed frame; see MatchesLayout.h.
void frmMatches::Form_Resize() {
    if (IsIconic(hwnd())) {
        return;
    }
    RECT frame{};
    GetWindowRect(hwnd(), &frame);
    const TwipsSize outer{PixelsToTwips(frame.right - frame.left, dpi_),
                          PixelsToTwips(frame.bottom - frame.top, dpi_)};
    if (const std::optional<TwipsSize> fixed = MatchesMinimumFix(outer)) {
        SetWindowPos(hwnd(), nullptr, 0, 0, PixelsCovering(fixed->width, dpi_),
                     PixelsCovering(fixed->height, dpi_),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return;
    }
    RECT client{};
    GetClientRect(hwnd(), &client);
    const MatchesLayout layout =
        ArrangeMatches({PixelsToTwips(client.right, dpi_) + kMatchesDesignedFrame.width,
                        PixelsToTwips(client.bottom, dpi_) + kMatchesDesignedFrame.height},
                       AssociateSize());
    Place(Label1, layout.Label1, dpi_);
    Place(lvwItems, layout.lvwItems, dpi_);
    Place(cmdOpen, layout.cmdOpen, dpi_);
    Place(chkAssociate, layout.chkAssociate, dpi_);
    // A control moved into ground that was uncovered only now is not always drawn again, nor
    // are the list header's old dividers taken away: everything is drawn afresh.
    RedrawWindow(hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

// The check box with its caption on one line, in twips: the box, a gap and the text.
TwipsSize frmMatches::AssociateSize() const {
    const WindowDC dc(chkAssociate);
    const SelectedObject font(dc.get(), font_.get());
    const std::wstring caption = Widen(WindowText(chkAssociate));
    SIZE text{};
    GetTextExtentPoint32W(dc.get(), caption.c_str(), static_cast<int>(caption.size()), &text);
    return {PixelsToTwips(text.cx + ScaleForDpi(kCheckBoxPixels, dpi_), dpi_),
            PixelsToTwips(text.cy, dpi_)};
}

// A minimized window saves its minimized place and size like any other.
void frmMatches::Form_Unload() {
    RememberedPlace place(kPlaceKeys);
    place.Store(hwnd());
    place.Save(host_->settings);
}

void frmMatches::cmdOpen_Click() {
    const std::optional<int> row = SelectedRow();
    if (!row) {
        return;
    }
    OpenRow(*row);
    Unload();
}

// A double-click beside the rows can leave none selected; then there is nothing to open.
void frmMatches::lvwItems_DblClick() {
    const std::optional<int> row = SelectedRow();
    if (!row) {
        return;
    }
    {
        const Hourglass busy;
        OpenRow(*row);
    }
    Unload();
}

void frmMatches::lvwItems_KeyPress(int key) {
    if (key == VK_RETURN) {
        lvwItems_DblClick();
    }
}

// The list's own type-to-find asks here, for the beginning of a name, since the rows are the
// window's.
LRESULT frmMatches::lvwItems_FindItem(const NMLVFINDITEMW& find) const {
    constexpr UINT kSubstring = 0x0004;  // LVFI_SUBSTRING, which MinGW's headers lack
    if ((find.lvfi.flags & (LVFI_STRING | kSubstring | LVFI_PARTIAL)) == 0 ||
        find.lvfi.psz == nullptr) {
        return -1;
    }
    return FindTypedRow(rows_, find.lvfi.psz, find.iStart,
                        ListView_GetNextItem(lvwItems, -1, LVNI_FOCUSED));
}

void frmMatches::lvwItems_ColumnClick(int column) {
    sort_.ColumnClick(column);
    SortRows();
    ShowSortArrow();
}

LRESULT frmMatches::OnNotify(const NMHDR& header) {
    if (header.hwndFrom != lvwItems) {
        return 0;
    }
    switch (header.code) {
        case LVN_COLUMNCLICK:
            lvwItems_ColumnClick(reinterpret_cast<const NMLISTVIEW&>(header).iSubItem);
            break;
        case NM_DBLCLK:
            PostMessageW(hwnd(), kListDoubleClick, 0, 0);
            break;
        case NM_RETURN:
            PostMessageW(hwnd(), kListKeyPress, VK_RETURN, 0);
            break;
        case LVN_GETDISPINFOW:
            // The list hands over its own item to be filled in.
            ShowRow(
                const_cast<NMLVDISPINFOW&>(reinterpret_cast<const NMLVDISPINFOW&>(header)).item);
            break;
        case NM_CUSTOMDRAW:
            return DrawRow(
                const_cast<NMLVCUSTOMDRAW&>(reinterpret_cast<const NMLVCUSTOMDRAW&>(header)));
        case LVN_ODFINDITEMW:
            return lvwItems_FindItem(reinterpret_cast<const NMLVFINDITEMW&>(header));
        default:
            break;
    }
    return 0;
}

// The list draws a selected row that lacks the focus in the button face colour, which on a white
// list hardly shows; it is drawn in a pale shade of the selection colour instead. Clearing the
// row's selected state for this drawing is what lets the list use the colours given here.
LRESULT frmMatches::DrawRow(NMLVCUSTOMDRAW& draw) const {
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) {
        return CDRF_NOTIFYITEMDRAW;
    }
    if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT || GetFocus() == lvwItems) {
        return CDRF_DODEFAULT;
    }
    const int row = static_cast<int>(draw.nmcd.dwItemSpec);
    if (ListView_GetItemState(lvwItems, row, LVIS_SELECTED) == 0) {
        return CDRF_DODEFAULT;
    }
    const COLORREF selection = GetSysColor(COLOR_HIGHLIGHT);
    const COLORREF window = GetSysColor(COLOR_WINDOW);
    const auto mix = [](BYTE a, BYTE b) { return static_cast<BYTE>((a + 3 * b) / 4); };
    draw.nmcd.uItemState &= ~static_cast<UINT>(CDIS_SELECTED);
    draw.clrTextBk = RGB(mix(GetRValue(selection), GetRValue(window)),
                         mix(GetGValue(selection), GetGValue(window)),
                         mix(GetBValue(selection), GetBValue(window)));
    draw.clrText = GetSysColor(COLOR_WINDOWTEXT);
    return CDRF_DODEFAULT;
}

// The dialog manager turns Enter into a click of Open and Escape into IDCANCEL; Enter in the list
// is the list's own key.
void frmMatches::OnCommand(int id, int code, HWND) {
    if (code != BN_CLICKED) {
        return;
    }
    if (id == kMatchesOpenId) {
        if (GetFocus() == lvwItems) {
            lvwItems_KeyPress(VK_RETURN);
        } else {
            cmdOpen_Click();
        }
    } else if (id == IDCANCEL) {
        Unload();
    }
}

// Made in tab order: the list, the check box, Open.
void frmMatches::CreateControls() {
    Label1 = CreateControl(
        hwnd(), L"STATIC",
        "Quorin found multiple matches for your keyword. Please choose from the following:",
        SS_LEFT | SS_NOPREFIX, kMatchesLabelId);
    lvwItems = CreateControl(hwnd(), WC_LISTVIEWW, "",
                             WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL |
                                 LVS_SHOWSELALWAYS | LVS_SHAREIMAGELISTS,
                             kMatchesListId, WS_EX_CLIENTEDGE);
    ListView_SetExtendedListViewStyle(lvwItems, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    for (int column = 0; column < std::ssize(kMatchesColumns); ++column) {
        const MatchesColumn& shown = kMatchesColumns[static_cast<size_t>(column)];
        AddListColumn(lvwItems, column, shown.title, TwipsToPixels(shown.widthTwips, dpi_));
    }
    chkAssociate = CreateControl(hwnd(), L"BUTTON", "Always associate this word with this item",
                                 WS_TABSTOP | BS_AUTOCHECKBOX | BS_MULTILINE, kMatchesAssociateId);
    cmdOpen =
        CreateControl(hwnd(), L"BUTTON", "Open", WS_TABSTOP | BS_DEFPUSHBUTTON, kMatchesOpenId);
}

// A saved place is kept inside a monitor's work area, whatever screen or DPI it was saved on;
// without one the window comes up in the middle of the screen the user typed the word on.
void frmMatches::RestorePlace() {
    RememberedPlace saved(kPlaceKeys);
    saved.Load(host_->settings, {}, {}, dpi_);
    RECT place{};
    if (saved.SizeTwips().cx >= 1) {
        const RECT pixels = saved.InPixels(dpi_);
        place = KeptInside(pixels, WorkAreaNear(pixels));
    } else {
        RECT frame{};
        GetWindowRect(hwnd(), &frame);
        place = CentredIn({frame.right - frame.left, frame.bottom - frame.top},
                          WorkAreaOf(GetForegroundWindow()));
    }
    MoveWindow(hwnd(), place.left, place.top, place.right - place.left, place.bottom - place.top,
               FALSE);
}

void frmMatches::ShowRow(LVITEMW& item) {
    if (item.iItem < 0 || item.iItem >= rows_.Count()) {
        return;
    }
    if ((item.mask & LVIF_TEXT) != 0 && item.cchTextMax > 0) {
        lstrcpynW(item.pszText, rows_.Text(item.iItem, item.iSubItem).c_str(), item.cchTextMax);
    }
    if ((item.mask & LVIF_IMAGE) != 0 && item.iSubItem == MatchesSort::kName) {
        item.iImage = RowImage(item.iItem).value_or(I_IMAGENONE);
    }
}

// Rows of the same type, or of the same program, share one image.
std::optional<int> frmMatches::RowImage(int row) {
    const std::string name = rows_.Filename(row);
    const std::string& folder = rows_.Folder(row);
    const auto [image, added] =
        images_.try_emplace(ctlIconExtractor::ImageKey(name, folder), std::nullopt);
    if (added) {
        image->second = ctlIconExtractor1.RetrieveFileIcon(name, folder);
        if (!image->second) {
            image->second = BlankImage();
        }
    }
    return image->second;
}

// A row whose type has no icon shows a blank image of the same size, so that its name lines up
// with the others. The extractor adds its cleared surface when there is nothing to extract.
std::optional<int> frmMatches::BlankImage() {
    if (!blankImage_) {
        std::string noFile;
        int noIndex = 0;
        blankImage_ = ctlIconExtractor1.AddIcon("", noFile, noIndex);
    }
    return blankImage_;
}

void frmMatches::SelectRow(int row) {
    const UINT state = LVIS_SELECTED | LVIS_FOCUSED;
    ListView_SetItemState(lvwItems, row, state, state);
    ListView_EnsureVisible(lvwItems, row, FALSE);
}

std::optional<int> frmMatches::SelectedRow() const {
    const int row = ListView_GetNextItem(lvwItems, -1, LVNI_SELECTED);
    return row < 0 ? std::nullopt : std::optional<int>(row);
}

// The word goes to the item at the row's current position in the collection, which after a
// sort need not be the row's own file; the file opened is always the row's own.
void frmMatches::OpenRow(int row) {
    if (Button_GetCheck(chkAssociate) == BST_CHECKED) {
        clsItem item = matches_->Item(row + 1);
        item.Word = word_;
        // A build since the rows were filled has numbered the folders anew.
        item.Directory = host_->index.GetDirectory(rows_.FolderAt(row + 1)).value_or(0);
        host_->index.AddWord(item);
        if (host_->AddWords) {
            host_->AddWords();
        }
    }
    const std::string& folder = rows_.Folder(row);
    host_->shell.Open(JoinPath(folder, rows_.Filename(row)), "", folder, kShowNormal);
}

// The selected row stays selected, wherever the sort puts it.
void frmMatches::SortRows() {
    const std::optional<int> selected = SelectedRow();
    const std::optional<int32_t> position =
        selected ? std::optional<int32_t>(rows_.Position(*selected)) : std::nullopt;
    rows_.Sort(sort_.sortKey, sort_.sortOrder);
    if (position) {
        SelectRow(rows_.RowOf(*position).value_or(0));
    }
    InvalidateRect(lvwItems, nullptr, FALSE);
}

void frmMatches::ShowSortArrow() {
    const HWND header = ListView_GetHeader(lvwItems);
    for (int column = 0; column < std::ssize(kMatchesColumns); ++column) {
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        Header_GetItem(header, column, &item);
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (sort_.sorted && column == sort_.sortKey) {
            item.fmt |= sort_.sortOrder == MatchesSortOrder::Ascending ? HDF_SORTUP : HDF_SORTDOWN;
        }
        Header_SetItem(header, column, &item);
    }
}

// The window's object goes with it: nothing may touch a member afterwards.
void frmMatches::Unload() {
    DestroyWindow(hwnd());
}

}  // namespace quorin
