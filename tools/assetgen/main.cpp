// quorin-assetgen FOLDER: draws the program's icons, splash picture and search animation and
// writes them into FOLDER. The output depends on nothing but this code, byte for byte.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "AnimationArt.h"
#include "AviEncoder.h"
#include "Encoders.h"
#include "IconArt.h"
#include "Palette.h"
#include "SplashArt.h"

namespace {

using namespace quorin::assets;

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw std::runtime_error("Cannot write " + path.string() + ".");
    }
}

std::string IconFile(Image (*draw)(int)) {
    std::vector<Image> images;
    for (int size : kIconSizes) {
        images.push_back(draw(size));
    }
    return EncodeIco(images);
}

std::string AnimationFile() {
    const IndexedFrames video = Quantize(DrawSearchAnimation(), Rgb8FromHex(kAnimationBackground));
    return EncodeAvi(video, kAnimationFramesPerSecond);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: quorin-assetgen OUTPUT-FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = argv[1];
        std::filesystem::create_directories(folder);
        WriteFile(folder / "quorin.ico", IconFile(DrawProgramIcon));
        WriteFile(folder / "indexing.ico", IconFile(DrawIndexingIcon));
        WriteFile(folder / "splash.bmp", EncodeBmp(DrawSplashPicture()));
        WriteFile(folder / "findfile.avi", AnimationFile());
    } catch (const std::exception& e) {
        std::cerr << "quorin-assetgen: " << e.what() << "\n";
        return 1;
    }
    return 0;
}
