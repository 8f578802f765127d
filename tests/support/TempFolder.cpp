#include "support/TempFolder.h"

#include "platform/FileSystem.h"

#include <fstream>
#include <random>
#include <stdexcept>

namespace quorin {
namespace {

namespace fs = std::filesystem;

fs::path Below(const std::string& root, std::string_view relative) {
    return (FsPath(root) / FsPath(relative)).make_preferred();
}

}  // namespace

TempFolder::TempFolder() {
    std::random_device random;
    const fs::path base = fs::temp_directory_path();
    for (;;) {
        const fs::path candidate = base / ("quorin-test-" + std::to_string(random()));
        if (fs::create_directory(candidate)) {
            path_ = Utf8Path(candidate);
            return;
        }
    }
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(FsPath(path_), ignored);
}

std::string TempFolder::MakeFolder(std::string_view relative) const {
    const fs::path folder = Below(path_, relative);
    fs::create_directories(folder);
    return Utf8Path(folder);
}

std::string TempFolder::WriteFile(std::string_view relative, std::string_view content) const {
    const fs::path file = Below(path_, relative);
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!out.flush()) {
        throw std::runtime_error("Cannot write the test file " + Utf8Path(file));
    }
    return Utf8Path(file);
}

}  // namespace quorin
