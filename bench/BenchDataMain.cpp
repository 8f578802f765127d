// quorin-benchdata: the deterministic inputs of scripts/bench.
//   quorin-benchdata tree ROOT [FOLDERS FILES]      a folder tree of empty files
//   quorin-benchdata windows ROOT [FOLDERS FILES]   the same, shaped like a Windows drive
//   quorin-benchdata index FOLDER [FOLDERS RECORDS] index.txt and names.txt
#include "DataWriters.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

namespace {

constexpr uint64_t kSeed = 20240115;

uint32_t CountArgument(int argc, char** argv, int index, uint32_t fallback) {
    return argc > index ? static_cast<uint32_t>(std::strtoul(argv[index], nullptr, 10)) : fallback;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string command = argc > 2 ? argv[1] : "";
    try {
        if (command == "tree") {
            quorin::bench::WriteTree(argv[2], CountArgument(argc, argv, 3, 5000),
                                     CountArgument(argc, argv, 4, 100000), kSeed);
            return 0;
        }
        if (command == "windows") {
            quorin::bench::WriteWindowsTree(argv[2], CountArgument(argc, argv, 3, 250000),
                                            CountArgument(argc, argv, 4, 1500000), kSeed);
            return 0;
        }
        if (command == "index") {
            quorin::bench::WriteIndexCorpus(argv[2], CountArgument(argc, argv, 3, 5000),
                                            CountArgument(argc, argv, 4, 1000000), kSeed);
            return 0;
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "quorin-benchdata: %s\n", e.what());
        return 1;
    }
    std::fprintf(stderr,
                 "usage: quorin-benchdata tree|windows ROOT [FOLDERS FILES]\n"
                 "       quorin-benchdata index FOLDER [FOLDERS RECORDS]\n");
    return 2;
}
