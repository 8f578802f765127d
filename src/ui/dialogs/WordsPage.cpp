#include "ui/dialogs/WordsPage.h"

#include <commctrl.h>

#include "OptionsDialog.h"
#include "index/clsIndex.h"
#include "platform/Path.h"
#include "platform/Prompter.h"
#include "platform/Text.h"
#include "ui/ListViewColumn.h"
#include "ui/dialogs/DialogTexts.h"
#include "ui/dialogs/frmNewWord.h"

namespace quorin {

namespace {

constexpr int kWordColumn = 0;
constexpr int kFilenameColumn = 1;

}  // namespace

void WordsPage::FirstShown() {
    const HWND lvwWords = Item(IDC_OPTIONS_WORDS);
    ListView_SetExtendedListViewStyle(lvwWords, LVS_EX_FULLROWSELECT);
    RECT box{};
    GetClientRect(lvwWords, &box);
    AddListColumn(lvwWords, kWordColumn, L"Word", box.right / 3);
    AddListColumn(lvwWords, kFilenameColumn, L"Filename", box.right - box.right / 3);
    FillWords();
}

void WordsPage::OnCommand(int id, int code, HWND) {
    if (code != BN_CLICKED) {
        return;
    }
    if (id == IDC_OPTIONS_DELETE) {
        cmdDelete_Click();
    } else if (id == IDC_OPTIONS_ADDNEW) {
        cmdAddNew_Click();
    }
}

// One row per assignment in the collection's order; the file column joins the folder and the
// file name.
void WordsPage::FillWords() {
    const HWND lvwWords = Item(IDC_OPTIONS_WORDS);
    ListView_DeleteAllItems(lvwWords);
    int row = 0;
    for (const clsItem& word : services_.index.Words()) {
        std::wstring text = Widen(word.Word);
        std::wstring file = Widen(services_.index.GetPath(word.Directory) + "\\" + word.Filename);
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = row++;
        item.pszText = text.data();
        const int inserted = ListView_InsertItem(lvwWords, &item);
        ListView_SetItemText(lvwWords, inserted, kFilenameColumn, file.data());
    }
}

std::wstring WordsPage::CellText(int row, int column) const {
    wchar_t text[2048] = {};
    ListView_GetItemText(Item(IDC_OPTIONS_WORDS), row, column, text,
                         static_cast<int>(std::size(text)));
    return text;
}

void WordsPage::cmdDelete_Click() {
    const int row = ListView_GetNextItem(Item(IDC_OPTIONS_WORDS), -1, LVNI_SELECTED);
    if (row < 0) {
        return;
    }
    const std::string word = Narrow(CellText(row, kWordColumn));
    const std::string file = Narrow(CellText(row, kFilenameColumn));
    if (services_.prompter.Ask(kConfirmDeleteTitle, ConfirmDeleteText(word, file),
                               PromptButtons::YesNo,
                               PromptIcon::Information) != PromptAnswer::Yes) {
        return;
    }
    services_.index.Words().Remove(word);
    services_.index.SaveWords();
    FillWords();
    wordsChanged_ = true;
}

void WordsPage::cmdAddNew_Click() {
    frmNewWord newWord({services_.index, services_.prompter, services_.files, services_.icon});
    newWord.ShowModal(GetParent(hwnd()));
    FillWords();
    wordsChanged_ = true;
}

}  // namespace quorin
