#include "ui/matches/ctlIconExtractor.h"

#include "platform/Errors.h"
#include "platform/Path.h"
#include "platform/Text.h"

#include <shellapi.h>

#include <algorithm>
#include <climits>

namespace quorin {
namespace {

constexpr std::string_view kSystemRootMarker = "%SystemRoot%";
constexpr size_t kKeyLength = 4;
constexpr std::uint32_t kOpaque = 0xFF000000;

std::string WindowsDirectory() {
    wchar_t buffer[MAX_PATH] = {};
    const UINT length = GetWindowsDirectoryW(buffer, MAX_PATH);
    return length < MAX_PATH ? Narrow(std::wstring_view(buffer, length)) : std::string();
}

// A top-down 32-bit picture whose pixels the caller may touch directly.
UniqueBitmap CreatePicture(int width, int height, std::uint32_t*& pixels) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    UniqueBitmap picture(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    pixels = static_cast<std::uint32_t*>(bits);
    return picture;
}

// The last four characters as the classes root is asked for them (UTF-16 units, as the
// registry counts them).
std::string LookupKey(const std::string& fileName) {
    const std::wstring wide = Widen(fileName);
    return Narrow(std::wstring_view(wide).substr(wide.size() - std::min(wide.size(), kKeyLength)));
}

// Only this case: "SETUP.EXE" is looked up by its type like any other file.
bool IsProgram(const std::string& fileName) {
    return fileName.ends_with(".exe");
}

}  // namespace

ctlIconExtractor::ctlIconExtractor()
    : windowsDirectory_(WindowsDirectory()),
      surface_(CreatePicture(kSurfaceSize, kSurfaceSize, surfacePixels_)),
      surfaceDC_(CreateCompatibleDC(nullptr)),
      surfaceSelection_(surfaceDC_.get(), surface_.get()) {
    if (!surface_ || !surfaceDC_) {
        throw Error("The drawing surface for file icons cannot be created.");
    }
}

std::optional<int> ctlIconExtractor::AddIcon(const std::string& IconLocation, std::string& FilePath,
                                             int& IconIndex) {
    if (!IconLocation.empty()) {
        ParseIconLocation(IconLocation, FilePath, IconIndex);
    }
    // At the size the host shows it: the file's own picture of that size, not one scaled from
    // another. A negative index names a resource, as for ExtractIconEx.
    const int size = IconPixels();
    HICON small = nullptr;
    const UINT extracted = PrivateExtractIconsW(Widen(FilePath).c_str(), IconIndex, size, size,
                                                &small, nullptr, 1, LR_DEFAULTCOLOR);
    // A failed call may leave anything in `small`.
    const UniqueIcon icon(extracted != 0 && extracted != UINT_MAX ? small : nullptr);
    DrawOnSurface(icon.get());

    std::optional<int> image;
    if (imageListSmall_ != nullptr) {
        image = AddSurfaceTo(imageListSmall_);
    }
    if (imageListLarge_ != nullptr) {
        image = AddSurfaceTo(imageListLarge_);
    }
    return image;
}

std::optional<int> ctlIconExtractor::RetrieveFileIcon(const std::string& FileName,
                                                      const std::string& Path) {
    if (IsProgram(FileName)) {
        std::string filePath = JoinPath(Path, FileName);
        int iconIndex = 0;
        return AddIcon("", filePath, iconIndex);
    }
    return TypeIcon(LookupKey(FileName));
}

std::optional<int> ctlIconExtractor::RetrieveExtIcon(const std::string& Ext) {
    return TypeIcon(Ext);
}

std::string ctlIconExtractor::ImageKey(const std::string& FileName, const std::string& Path) {
    return IsProgram(FileName) ? JoinPath(Path, FileName) : ToUpper(LookupKey(FileName));
}

// "path,index": the first comma splits; "%SystemRoot%" (this case only) stands for the Windows
// folder once. Without a comma there is no icon to find; an index that is no whole number
// leaves IconIndex as it was and the path unexpanded.
void ctlIconExtractor::ParseIconLocation(const std::string& IconLocation, std::string& FilePath,
                                         int& IconIndex) const {
    const size_t comma = IconLocation.find(',');
    if (comma == std::string::npos) {
        FilePath.clear();
        IconIndex = 0;
        return;
    }
    FilePath = IconLocation.substr(0, comma);
    try {
        IconIndex = RegistryValue(IconLocation.substr(comma + 1)).AsNumber();
    } catch (const TypeMismatchError&) {
        return;
    }
    const size_t marker = FilePath.find(kSystemRootMarker);
    if (marker != std::string::npos) {
        FilePath.replace(marker, kSystemRootMarker.size(), windowsDirectory_);
    }
}

// The key's default value names a file type, whose "DefaultIcon" says where its icon is.
std::optional<int> ctlIconExtractor::TypeIcon(const std::string& key) {
    const std::string fileType = registry_.QueryValue(HKEY_CLASSES_ROOT, key, "").AsText();
    const std::string iconLocation =
        registry_.QueryValue(HKEY_CLASSES_ROOT, fileType + "\\DefaultIcon", "").AsText();
    if (iconLocation.empty()) {
        return std::nullopt;
    }
    std::string filePath;
    int iconIndex = 0;
    return AddIcon(iconLocation, filePath, iconIndex);
}

// The icon size of the list whose entry is returned, the system's small icon size without one;
// at most the surface.
int ctlIconExtractor::IconPixels() const {
    const HIMAGELIST list = imageListLarge_ != nullptr ? imageListLarge_ : imageListSmall_;
    int width = GetSystemMetrics(SM_CXSMICON);
    int height = width;
    if (list != nullptr) {
        ImageList_GetIconSize(list, &width, &height);
    }
    return std::min(width, kSurfaceSize);
}

// The icon at its own size in the top-left corner, over the list views' background colour.
void ctlIconExtractor::DrawOnSurface(HICON icon) {
    const RECT whole{0, 0, kSurfaceSize, kSurfaceSize};
    FillRect(surfaceDC_.get(), &whole, GetSysColorBrush(COLOR_WINDOW));
    if (icon != nullptr) {
        DrawIconEx(surfaceDC_.get(), 0, 0, icon, 0, 0, 0, nullptr, DI_NORMAL);
    }
    GdiFlush();
}

// The list's image size taken from the surface's top-left corner: a small-icon list gets the
// icon itself, a 32 x 32 list the whole surface. GDI leaves the alpha bytes undefined, so every
// pixel is made opaque; whatever lies beyond the surface stays transparent.
std::optional<int> ctlIconExtractor::AddSurfaceTo(HIMAGELIST list) const {
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(list, &width, &height);
    std::uint32_t* pixels = nullptr;
    const UniqueBitmap picture = CreatePicture(width, height, pixels);
    if (!picture) {
        return std::nullopt;
    }
    for (int y = 0; y < std::min(height, kSurfaceSize); ++y) {
        for (int x = 0; x < std::min(width, kSurfaceSize); ++x) {
            pixels[y * width + x] = surfacePixels_[y * kSurfaceSize + x] | kOpaque;
        }
    }
    const int index = ImageList_Add(list, picture.get(), nullptr);
    return index < 0 ? std::nullopt : std::optional<int>(index);
}

}  // namespace quorin
