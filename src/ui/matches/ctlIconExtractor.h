#pragma once

#include "platform/WinHandles.h"
#include "platform/registry/clsRegistry.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdint>
#include <optional>
#include <string>

namespace quorin {

// Finds the icon of a file or of a file extension the way the classes root describes it
// (extension, file type, the type's "DefaultIcon") and adds it to the host's image lists.
// The small icon, extracted at the host lists' icon size (so 24 pixels at 144 DPI when the host's
// lists are that size), is drawn on the extractor's own 32 x 32 surface and that picture is added,
// so the surface's background shows through the icon's transparent parts, and a failed
// extraction still adds the blank surface. An image is its index in a host list. No image is
// keyed, so every request extracts again and adds a new image. Nothing is ever shown to the user.
class ctlIconExtractor {
  public:
    ctlIconExtractor();
    ctlIconExtractor(const ctlIconExtractor&) = delete;
    ctlIconExtractor& operator=(const ctlIconExtractor&) = delete;

    // The host's lists, which it keeps owning; either may stay unset. Both receive the same
    // picture in the same order; what the operations return is the index in the list set as
    // large when there is one, otherwise in the small list.
    void ImageListSmall(HIMAGELIST list) { imageListSmall_ = list; }
    void ImageListLarge(HIMAGELIST list) { imageListLarge_ = list; }

    // Adds icon IconIndex of FilePath; a non-empty IconLocation ("path,index") first replaces
    // both with what it names. Nothing only when neither list is set.
    std::optional<int> AddIcon(const std::string& IconLocation, std::string& FilePath,
                               int& IconIndex);

    // A program (a name ending in ".exe", lower case only) gives its own first icon; any other
    // file the icon of the type that its last four characters name in the classes root
    // (".txt" for notes.txt, "html" for page.html, the whole name when it is shorter).
    std::optional<int> RetrieveFileIcon(const std::string& FileName, const std::string& Path);

    // Ext as the classes root knows it, dot included: ".txt".
    std::optional<int> RetrieveExtIcon(const std::string& Ext);

    // What RetrieveFileIcon's answer depends on, for a host that keys the images it gets back:
    // the program's own path, or the type's key without regard to case.
    static std::string ImageKey(const std::string& FileName, const std::string& Path);

  private:
    static constexpr int kSurfaceSize = 32;

    void ParseIconLocation(const std::string& IconLocation, std::string& FilePath,
                           int& IconIndex) const;
    std::optional<int> TypeIcon(const std::string& key);
    int IconPixels() const;
    void DrawOnSurface(HICON icon);
    std::optional<int> AddSurfaceTo(HIMAGELIST list) const;

    clsRegistry registry_;
    std::string windowsDirectory_;
    HIMAGELIST imageListSmall_ = nullptr;
    HIMAGELIST imageListLarge_ = nullptr;
    std::uint32_t* surfacePixels_ = nullptr;  // top-down rows of the surface, owned by surface_
    UniqueBitmap surface_;
    UniqueMemoryDC surfaceDC_;
    SelectedObject surfaceSelection_;
};

}  // namespace quorin
