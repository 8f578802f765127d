#include "AviEncoder.h"

#include <string_view>

#include "ByteWriter.h"

namespace quorin::assets {

namespace {

constexpr uint32_t kHasIndex = 0x10;  // AVIF_HASINDEX
constexpr uint32_t kKeyFrame = 0x10;  // AVIIF_KEYFRAME
constexpr size_t kPaletteEntries = 256;

// Writes a chunk header and returns where its size goes; EndChunk fills it in.
size_t BeginChunk(ByteWriter& out, std::string_view id) {
    out.FourCC(id);
    const size_t sizeOffset = out.Size();
    out.U32(0);
    return sizeOffset;
}

size_t BeginList(ByteWriter& out, std::string_view listId, std::string_view type) {
    const size_t sizeOffset = BeginChunk(out, listId);
    out.FourCC(type);
    return sizeOffset;
}

void EndChunk(ByteWriter& out, size_t sizeOffset) {
    out.Patch32(sizeOffset, static_cast<uint32_t>(out.Size() - sizeOffset - 4));
    if (out.Size() % 2 != 0) {
        out.U8(0);  // chunks start on even offsets; the pad is not counted in the size
    }
}

void WriteMainHeader(ByteWriter& out, const IndexedFrames& video, int fps, uint32_t frameBytes) {
    const size_t chunk = BeginChunk(out, "avih");
    out.U32(static_cast<uint32_t>(1000000 / fps));
    out.U32(frameBytes * static_cast<uint32_t>(fps));
    out.U32(0);  // padding granularity
    out.U32(kHasIndex);
    out.U32(static_cast<uint32_t>(video.frames.size()));
    out.U32(0);  // initial frames
    out.U32(1);  // streams
    out.U32(frameBytes);
    out.I32(video.width);
    out.I32(video.height);
    out.Zeros(16);
    EndChunk(out, chunk);
}

void WriteStreamHeader(ByteWriter& out, const IndexedFrames& video, int fps, uint32_t frameBytes) {
    const size_t chunk = BeginChunk(out, "strh");
    out.FourCC("vids");
    out.FourCC("DIB ");
    out.U32(0);  // flags
    out.U16(0);  // priority
    out.U16(0);  // language
    out.U32(0);  // initial frames
    out.U32(1);  // scale: rate / scale frames per second
    out.U32(static_cast<uint32_t>(fps));
    out.U32(0);  // start
    out.U32(static_cast<uint32_t>(video.frames.size()));
    out.U32(frameBytes);
    out.U32(0xFFFFFFFF);  // quality: default
    out.U32(0);           // sample size: varies
    out.U16(0);           // frame rectangle
    out.U16(0);
    out.U16(static_cast<uint16_t>(video.width));
    out.U16(static_cast<uint16_t>(video.height));
    EndChunk(out, chunk);
}

void WriteStreamFormat(ByteWriter& out, const IndexedFrames& video, uint32_t frameBytes) {
    const size_t chunk = BeginChunk(out, "strf");
    out.U32(40);
    out.I32(video.width);
    out.I32(video.height);  // positive: bottom-up rows
    out.U16(1);
    out.U16(8);
    out.U32(0);  // BI_RGB
    out.U32(frameBytes);
    out.I32(0);
    out.I32(0);
    out.U32(kPaletteEntries);
    out.U32(0);
    for (size_t i = 0; i < kPaletteEntries; ++i) {
        const Rgb8 c = i < video.palette.size() ? video.palette[i] : Rgb8{};
        out.U8(c.b);
        out.U8(c.g);
        out.U8(c.r);
        out.U8(0);
    }
    EndChunk(out, chunk);
}

std::string FrameRows(const IndexedFrames& video, const std::vector<uint8_t>& frame,
                      uint32_t stride) {
    std::string rows;
    rows.reserve(stride * static_cast<size_t>(video.height));
    for (int y = video.height - 1; y >= 0; --y) {
        const auto* row = frame.data() + static_cast<size_t>(y) * video.width;
        rows.append(reinterpret_cast<const char*>(row), static_cast<size_t>(video.width));
        rows.append(stride - static_cast<size_t>(video.width), '\0');
    }
    return rows;
}

}  // namespace

std::string EncodeAvi(const IndexedFrames& video, int framesPerSecond) {
    const uint32_t stride = static_cast<uint32_t>((video.width + 3) / 4 * 4);
    const uint32_t frameBytes = stride * static_cast<uint32_t>(video.height);

    ByteWriter out;
    const size_t riff = BeginList(out, "RIFF", "AVI ");

    const size_t headers = BeginList(out, "LIST", "hdrl");
    WriteMainHeader(out, video, framesPerSecond, frameBytes);
    const size_t streamList = BeginList(out, "LIST", "strl");
    WriteStreamHeader(out, video, framesPerSecond, frameBytes);
    WriteStreamFormat(out, video, frameBytes);
    EndChunk(out, streamList);
    EndChunk(out, headers);

    const size_t movie = BeginList(out, "LIST", "movi");
    const size_t movieType = movie + 4;  // index offsets count from the 'movi' type code
    std::vector<uint32_t> offsets;
    for (const auto& frame : video.frames) {
        offsets.push_back(static_cast<uint32_t>(out.Size() - movieType));
        const size_t chunk = BeginChunk(out, "00db");
        out.Bytes(FrameRows(video, frame, stride));
        EndChunk(out, chunk);
    }
    EndChunk(out, movie);

    const size_t index = BeginChunk(out, "idx1");
    for (uint32_t offset : offsets) {
        out.FourCC("00db");
        out.U32(kKeyFrame);
        out.U32(offset);
        out.U32(frameBytes);
    }
    EndChunk(out, index);

    EndChunk(out, riff);
    return out.Data();
}

}  // namespace quorin::assets
