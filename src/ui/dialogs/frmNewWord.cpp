#include "ui/dialogs/frmNewWord.h"

#include "NewWordDialog.h"
#include "index/clsIndex.h"
#include "platform/Prompter.h"
#include "ui/FocusColors.h"
#include "ui/WindowText.h"
#include "ui/dialogs/DialogTexts.h"
#include "ui/dialogs/FileChooser.h"
#include "ui/dialogs/NewWordModel.h"

namespace quorin {

frmNewWord::frmNewWord(NewWordServices services)
    : Dialog(IDD_NEWWORD), services_(std::move(services)) {}

bool frmNewWord::OnInit() {
    txtWord = Item(IDC_NEWWORD_WORD);
    txtFilename = Item(IDC_NEWWORD_FILENAME);
    SetIcon(services_.icon);
    return true;
}

void frmNewWord::OnCommand(int id, int code, HWND control) {
    if (id == IDC_NEWWORD_BROWSE && code == BN_CLICKED) {
        cmdBrowse_Click();
    } else if (code == EN_SETFOCUS && (control == txtWord || control == txtFilename)) {
        HighlightControl(control);
    } else if (code == EN_KILLFOCUS && (control == txtWord || control == txtFilename)) {
        UnhighlightControl(control);
    }
}

HBRUSH frmNewWord::OnControlColor(HWND control, HDC dc) {
    return FocusColors(control, dc);
}

void frmNewWord::cmdBrowse_Click() {
    fileName_ = services_.files.Choose(hwnd(), "All files (*.*)|*.*", fileName_);
    if (!fileName_.empty()) {
        SetText(txtFilename, fileName_);
    }
}

void frmNewWord::cmdOK_Click() {
    const std::string word = WindowText(txtWord);
    const std::string path = WindowText(txtFilename);
    clsIndex& index = services_.index;
    if (const std::optional<NewWordFault> fault = CheckNewWord(index, word, path)) {
        switch (*fault) {
            case NewWordFault::NoWord:
                Refuse(kNoWordText, IDC_NEWWORD_WORD);
                break;
            case NewWordFault::NoFile:
                Refuse(kNoFileText, IDC_NEWWORD_FILENAME);
                break;
            case NewWordFault::WordAssigned:
                Refuse(WordAlreadyAssignedText(word), IDC_NEWWORD_WORD);
                break;
        }
        return;
    }
    index.AddWord(NewWordItem(index, word, path));
    EndDialog(IDOK);
}

// The message, then the focus back into the field at fault; the dialog stays open.
void frmNewWord::Refuse(std::string_view text, int field) {
    services_.prompter.Ask(kCannotAddTitle, text, PromptButtons::Ok, PromptIcon::Information);
    SendMessageW(hwnd(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(field)), TRUE);
}

}  // namespace quorin
