#include "WindowsTree.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>

namespace quorin::bench {
namespace {

constexpr uint32_t kComponentFolders = 15000;
constexpr uint32_t kPrograms = 300;
constexpr std::array<std::string_view, 6> kUsers = {"Public", "Anna",  "Ben",
                                                    "Chloe",  "David", "Default"};
constexpr std::array<std::string_view, 8> kUserFolders = {
    "Documents", "Pictures", "Music", "Downloads", "Desktop", "Videos", "AppData", "OneDrive"};

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

}  // namespace

WindowsTree::WindowsTree(std::string_view root, char separator, uint32_t folderCount,
                         NameGenerator& names, Random& random)
    : separator_(separator), folderCount_(folderCount), names_(names), random_(random) {
    paths_.reserve(folderCount);
    paths_.emplace_back(root);
    const size_t windows = AddFixed(0, "Windows");
    for (const char* name : {"System32", "SysWOW64", "assembly", "Microsoft.NET", "servicing"}) {
        growing_.push_back(AddFixed(windows, name));
    }
    AddComponentStore(windows);
    AddPrograms(AddFixed(0, "Program Files"));
    AddPrograms(AddFixed(0, "Program Files (x86)"));
    growing_.push_back(AddFixed(0, "ProgramData"));
    AddUsers(AddFixed(0, "Users"));
    Grow();
}

bool WindowsTree::Add(size_t parent, const std::string& name) {
    if (paths_.size() >= folderCount_) {
        return false;
    }
    std::string path = paths_[parent] + separator_ + name;
    if (!upperPaths_.insert(Upper(path)).second) {
        return false;
    }
    paths_.push_back(std::move(path));
    return true;
}

size_t WindowsTree::AddFixed(size_t parent, const std::string& name) {
    Add(parent, name);
    return paths_.size() - 1;
}

// Long, flat and all alike, as the folders of Windows' component store are.
void WindowsTree::AddComponentStore(size_t windows) {
    const size_t store = AddFixed(windows, "WinSxS");
    for (uint32_t i = 0; i < kComponentFolders; ++i) {
        char tail[64];
        std::snprintf(tail, sizeof tail, "_31bf3856ad364e35_10.0.19041.%u_none_%08x%08x",
                      random_.Below(5000), random_.Below(0xFFFFFFFFu), random_.Below(0xFFFFFFFFu));
        Add(store, "amd64_microsoft-windows-" + names_.FolderName() + tail);
    }
}

// Vendor\Program\bin: a program's files four levels down from the root.
void WindowsTree::AddPrograms(size_t programFiles) {
    for (uint32_t i = 0; i < kPrograms / 2; ++i) {
        if (Add(programFiles, names_.FolderName())) {
            const size_t vendor = paths_.size() - 1;
            if (Add(vendor, names_.FolderName())) {
                const size_t program = paths_.size() - 1;
                growing_.push_back(program);
                growing_.push_back(AddFixed(program, "bin"));
            }
        }
    }
}

void WindowsTree::AddUsers(size_t users) {
    for (const std::string_view user : kUsers) {
        const size_t home = AddFixed(users, std::string(user));
        for (const std::string_view folder : kUserFolders) {
            growing_.push_back(AddFixed(home, std::string(folder)));
        }
    }
}

// Each new folder goes below a folder picked at random among the growing ones, itself one of
// them afterwards: a few levels of nesting below every starting place, deeper where more grew.
void WindowsTree::Grow() {
    while (paths_.size() < folderCount_) {
        const size_t parent = growing_[random_.Below(static_cast<uint32_t>(growing_.size()))];
        if (Add(parent, names_.FolderName())) {
            growing_.push_back(paths_.size() - 1);
        }
    }
}

}  // namespace quorin::bench
