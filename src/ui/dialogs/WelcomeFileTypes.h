#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/WinHandles.h"
#include "platform/registry/clsRegistry.h"
#include "ui/matches/MatchesSort.h"
#include "ui/matches/ctlIconExtractor.h"

namespace quorin {

// The wizard's list of the file types the index takes: each type the classes root names whose
// extension the engine's filter lists, with its icon and description; a column click sorts it.
class WelcomeFileTypes {
  public:
    // Gives the list its small icons and two columns at its window's DPI.
    void Attach(HWND list);
    // The types the filter lists, whichever its mode.
    void Fill(const std::string& filter);
    void ColumnClick(int column);
    HWND hwnd() const { return lvwFileTypes; }

  private:
    struct Row {
        std::wstring type;
        std::wstring description;
        const std::wstring& Text(int column) const;
    };

    void AddFileType(const std::string& ext);
    std::string Description(const std::string& ext) const;
    void SortRows();
    static int CALLBACK CompareRows(LPARAM first, LPARAM second, LPARAM self);

    HWND lvwFileTypes = nullptr;
    UniqueImageList imlSmall;
    ctlIconExtractor ctlIconExtractor1;
    clsRegistry registry_;
    std::vector<Row> rows_;
    MatchesSort sort_;
};

}  // namespace quorin
