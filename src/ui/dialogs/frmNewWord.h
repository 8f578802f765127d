#pragma once

#include <windows.h>

#include <string>

#include "ui/Dialog.h"

namespace quorin {

class clsIndex;
class FileChooser;
class Prompter;

// What the Add New Word dialog works with.
struct NewWordServices {
    clsIndex& index;
    Prompter& prompter;
    FileChooser& files;
    HICON icon = nullptr;  // the main window's
};

// "Add New Word": the user's own word for a file, typed or picked with the file-open dialog.
// OK checks both entries and hands the pair to the engine, which records and saves it.
class frmNewWord final : public Dialog {
  public:
    explicit frmNewWord(NewWordServices services);

  protected:
    bool OnInit() override;
    void OnOk() override { cmdOK_Click(); }
    void OnCommand(int id, int code, HWND control) override;
    HBRUSH OnControlColor(HWND control, HDC dc) override;

  private:
    void cmdBrowse_Click();
    void cmdOK_Click();
    void Refuse(std::string_view text, int field);

    NewWordServices services_;
    std::string fileName_;  // the file-open dialog keeps its last file name
    HWND txtWord = nullptr;
    HWND txtFilename = nullptr;
};

}  // namespace quorin
