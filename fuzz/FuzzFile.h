#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>

#include <unistd.h>

namespace quorin::fuzz {

// The readers take file names, so each input is written to one scratch file of this process;
// /dev/shm keeps that off the disk where it exists.
class FuzzFile {
  public:
    explicit FuzzFile(const std::string& name) {
        const std::filesystem::path shm("/dev/shm");
        const auto folder =
            std::filesystem::is_directory(shm) ? shm : std::filesystem::temp_directory_path();
        path_ = (folder / ("quorin-fuzz-" + std::to_string(getpid()) + "-" + name)).string();
    }
    FuzzFile(const FuzzFile&) = delete;
    FuzzFile& operator=(const FuzzFile&) = delete;
    ~FuzzFile() { std::remove(path_.c_str()); }

    const std::string& Write(const uint8_t* data, size_t size) {
        std::FILE* file = std::fopen(path_.c_str(), "wb");
        if (!file || std::fwrite(data, 1, size, file) != size || std::fclose(file) != 0) {
            std::abort();  // the fuzzer's own machinery failed, not the code under test
        }
        return path_;
    }

    const std::string& Path() const { return path_; }

  private:
    std::string path_;
};

}  // namespace quorin::fuzz
