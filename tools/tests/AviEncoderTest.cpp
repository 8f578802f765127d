#include "AviEncoder.h"

#include <gtest/gtest.h>

#include "LittleEndian.h"

namespace quorin::assets {
namespace {

struct Chunk {
    std::string id;
    std::string listType;  // for RIFF and LIST chunks
    size_t data = 0;       // where the data starts (after a list's type)
    size_t size = 0;       // of the data, without a list's type
};

// The chunks between begin and end, following the even-offset padding rule.
std::vector<Chunk> Children(const std::string& file, size_t begin, size_t end) {
    std::vector<Chunk> chunks;
    size_t at = begin;
    while (at + 8 <= end) {
        Chunk chunk{file.substr(at, 4), "", at + 8, Le32(file, at + 4)};
        if (chunk.id == "LIST" || chunk.id == "RIFF") {
            chunk.listType = file.substr(at + 8, 4);
            chunk.data += 4;
            chunk.size -= 4;
        }
        EXPECT_LE(chunk.data + chunk.size, end) << chunk.id << " overruns its parent";
        chunks.push_back(chunk);
        at = (chunk.data + chunk.size + 1) / 2 * 2;
    }
    EXPECT_EQ(at, end);
    return chunks;
}

class AviEncoderTest : public ::testing::Test {
  protected:
    // Five pixels wide (rows padded to eight bytes), three frames with a marked pixel each.
    void SetUp() override {
        video_.width = 5;
        video_.height = 3;
        video_.palette = {{240, 240, 240}, {255, 0, 0}};
        for (int f = 0; f < 3; ++f) {
            std::vector<uint8_t> frame(15, 0);
            frame[static_cast<size_t>(f)] = 1;  // top row, x = f
            video_.frames.push_back(frame);
        }
        avi_ = EncodeAvi(video_, 10);
        const std::vector<Chunk> top = Children(avi_, 0, avi_.size());
        ASSERT_EQ(top.size(), 1u);
        ASSERT_EQ(top[0].id, "RIFF");
        ASSERT_EQ(top[0].listType, "AVI ");
        parts_ = Children(avi_, top[0].data, top[0].data + top[0].size);
    }

    IndexedFrames video_;
    std::string avi_;
    std::vector<Chunk> parts_;
};

TEST_F(AviEncoderTest, HasHeadersOneSilentVideoStreamMovieAndIndex) {
    ASSERT_EQ(parts_.size(), 3u);
    EXPECT_EQ(parts_[0].listType, "hdrl");
    EXPECT_EQ(parts_[1].listType, "movi");
    EXPECT_EQ(parts_[2].id, "idx1");

    const auto headers = Children(avi_, parts_[0].data, parts_[0].data + parts_[0].size);
    ASSERT_EQ(headers.size(), 2u);  // avih and a single stream list: no sound
    ASSERT_EQ(headers[0].id, "avih");
    const size_t avih = headers[0].data;
    EXPECT_EQ(headers[0].size, 56u);
    EXPECT_EQ(Le32(avi_, avih), 100000u);         // microseconds per frame
    EXPECT_NE(Le32(avi_, avih + 12) & 0x10, 0u);  // has an index
    EXPECT_EQ(Le32(avi_, avih + 16), 3u);
    EXPECT_EQ(Le32(avi_, avih + 24), 1u);
    EXPECT_EQ(Le32(avi_, avih + 32), 5u);
    EXPECT_EQ(Le32(avi_, avih + 36), 3u);

    ASSERT_EQ(headers[1].listType, "strl");
    const auto stream = Children(avi_, headers[1].data, headers[1].data + headers[1].size);
    ASSERT_EQ(stream.size(), 2u);
    ASSERT_EQ(stream[0].id, "strh");
    const size_t strh = stream[0].data;
    EXPECT_EQ(avi_.substr(strh, 4), "vids");
    EXPECT_EQ(Le32(avi_, strh + 24) / Le32(avi_, strh + 20), 10u);  // rate / scale
    EXPECT_EQ(Le32(avi_, strh + 32), 3u);                           // length in frames
    ASSERT_EQ(stream[1].id, "strf");
    const size_t strf = stream[1].data;
    EXPECT_EQ(Le32(avi_, strf + 4), 5u);
    EXPECT_EQ(Le32(avi_, strf + 8), 3u);
    EXPECT_EQ(Le16(avi_, strf + 14), 8u);
    EXPECT_EQ(Le32(avi_, strf + 16), 0u);  // uncompressed
    EXPECT_EQ(stream[1].size, 40u + 256 * 4);
    EXPECT_EQ(avi_.substr(strf + 40, 4), std::string("\xF0\xF0\xF0\0", 4));
    EXPECT_EQ(avi_.substr(strf + 44, 4), std::string("\0\0\xFF\0", 4));
}

TEST_F(AviEncoderTest, StoresEveryFrameBottomUpAndIndexesIt) {
    const auto frames = Children(avi_, parts_[1].data, parts_[1].data + parts_[1].size);
    ASSERT_EQ(frames.size(), 3u);
    const size_t moviType = parts_[1].data - 4;
    const size_t index = parts_[2].data;
    ASSERT_EQ(parts_[2].size, 3u * 16);
    for (size_t f = 0; f < frames.size(); ++f) {
        SCOPED_TRACE(f);
        EXPECT_EQ(frames[f].id, "00db");
        ASSERT_EQ(frames[f].size, 3u * 8);
        const std::string rows = avi_.substr(frames[f].data, frames[f].size);
        std::string top(8, '\0');
        top[f] = '\1';
        EXPECT_EQ(rows.substr(16, 8), top);  // the top row comes last
        EXPECT_EQ(rows.substr(0, 16), std::string(16, '\0'));

        const size_t entry = index + 16 * f;
        EXPECT_EQ(avi_.substr(entry, 4), "00db");
        EXPECT_EQ(Le32(avi_, entry + 4), 0x10u);  // key frame
        EXPECT_EQ(moviType + Le32(avi_, entry + 8), frames[f].data - 8);
        EXPECT_EQ(Le32(avi_, entry + 12), frames[f].size);
    }
}

}  // namespace
}  // namespace quorin::assets
