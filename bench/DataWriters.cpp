#include "DataWriters.h"

#include "FolderTree.h"
#include "WindowsTree.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace quorin::bench {
namespace {

// A planted rare word in about one name of 20,000 gives a rare query a few dozen hits.
constexpr uint32_t kRareOneIn = 20000;

std::vector<uint32_t> SpreadOver(uint32_t items, uint32_t bins, Random& random) {
    std::vector<uint32_t> counts(bins, 0);
    for (uint32_t i = 0; i < items; ++i) {
        ++counts[random.Below(bins)];
    }
    return counts;
}

std::ofstream OpenForWriting(const std::filesystem::path& path) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) {
        throw std::runtime_error("Cannot create " + path.string() + ".");
    }
    return out;
}

// Creates the folders, parents first, and spreads the files over them at random.
void CreateFolders(const std::vector<std::string>& paths, uint32_t files, NameGenerator& names,
                   Random& random) {
    const std::vector<uint32_t> fileCounts =
        SpreadOver(files, static_cast<uint32_t>(paths.size()), random);
    for (size_t slot = 0; slot < paths.size(); ++slot) {
        const std::string& folder = paths[slot];
        std::filesystem::create_directories(folder);
        std::vector<std::string> taken;
        while (taken.size() < fileCounts[slot]) {
            const std::string name = names.FileName(1, 3);
            if (TakeUniqueName(taken, name)) {
                OpenForWriting(folder + '/' + name);
            }
        }
    }
}

}  // namespace

void WriteTree(const std::string& root, uint32_t folders, uint32_t files, uint64_t seed) {
    Random random(seed);
    NameGenerator names(seed + 1, kRareOneIn);
    const FolderTree tree(root, '/', folders, names, random);
    CreateFolders(tree.Paths(), files, names, random);
}

void WriteWindowsTree(const std::string& root, uint32_t folders, uint32_t files, uint64_t seed) {
    Random random(seed);
    NameGenerator names(seed + 1, kRareOneIn);
    const WindowsTree tree(root, '/', folders, names, random);
    CreateFolders(tree.Paths(), files, names, random);
}

void WriteIndexCorpus(const std::string& folder, uint32_t folders, uint32_t records,
                      uint64_t seed) {
    Random random(seed);
    NameGenerator names(seed + 1, kRareOneIn);
    const FolderTree tree("C:", '\\', folders, names, random);
    const std::vector<uint32_t> recordCounts = SpreadOver(records, folders, random);

    std::filesystem::create_directories(folder);
    std::ofstream index = OpenForWriting(std::filesystem::path(folder) / "index.txt");
    std::ofstream plain = OpenForWriting(std::filesystem::path(folder) / "names.txt");
    index << "2024-01-15 10:30:00\r\n " << folders << "\r\n";
    for (const std::string& path : tree.Paths()) {
        index << path << "\r\n";
    }
    for (uint32_t slot = 0; slot < folders; ++slot) {
        for (uint32_t i = 0; i < recordCounts[slot]; ++i) {
            const std::string name = names.FileName(4, 7);
            index << ' ' << slot << "\r\n" << name << "\r\n";
            plain << name << '\n';
        }
    }
    if (!index.flush() || !plain.flush()) {
        throw std::runtime_error("Cannot write the corpus in " + folder + ".");
    }
}

}  // namespace quorin::bench
