#pragma once

#include <string>
#include <string_view>

namespace quorin {

// A fresh folder under the system's temporary folder, removed with everything in it when the
// object goes. Relative paths may use "/" on every platform; the paths handed back use the
// platform's own separator.
class TempFolder {
  public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::string& Path() const { return path_; }

    // Both create the missing parent folders and return the full path.
    std::string MakeFolder(std::string_view relative) const;
    std::string WriteFile(std::string_view relative, std::string_view content) const;

  private:
    std::string path_;
};

}  // namespace quorin
