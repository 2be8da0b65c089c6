// libjpeg over bytes in memory: the rows of a JPEG, or of a part of one, from the top downwards.
#pragma once
#include "fileio/decode/decode.h"
#include "fileio/decode/libraries/metadata.h"
#include <cstdio> // before jpeglib.h, which needs it
#include <jpeglib.h>
#include <memory>

namespace velara::decode {

/// The bytes of a stream, from two places.
struct JpegBytes {
    Span first{}, second{};
    int firstMark = 0; // what the number of the first restart mark should be, 0 to 7
};

class JpegRows {
  public:
    /// Reads the header; throws Damage. The bytes are the caller's. cutOff becomes true when the data end too early.
    JpegRows(const JpegBytes& bytes, std::shared_ptr<bool> cutOff);
    ~JpegRows() { jpeg_destroy_decompress(&info_); }
    JpegRows(const JpegRows&) = delete;
    JpegRows& operator=(const JpegRows&) = delete;

    const jpeg_decompress_struct& info() const { return info_; }
    bool hasScans() { return jpeg_has_multiple_scans(&info_); }
    /// Cyan, magenta, yellow and black, each 255 for no ink.
    bool isInked() const { return isInked_; }
    /// Nothing irregular was met until now.
    bool isClean() const { return errors_.num_warnings == 0; }
    /// Before start: the bytes behind the header.
    Span scan() const { return {source_.next_input_byte, source_.bytes_in_buffer}; }
    /// To be called once before the rows. Of a file with several scans it decodes all of them.
    void start();
    void skip() { nextLine(line_.data()); }
    void read(Pixel* row);
    /// As Samples has them.
    void readInks(void* row);

  private:
    /// Throws Damage where the library would end the program.
    struct Errors : jpeg_error_mgr {
        explicit Errors(std::shared_ptr<bool> cutOff);
        std::shared_ptr<bool> isCutOff; // the first warning was of data that ended too early
    };
    /// The bytes, and after them end marks without end: some cameras omit theirs.
    struct Source : jpeg_source_mgr {
        explicit Source(const JpegBytes& bytes);
        Span second;
        int firstMark;
        bool isOver = false;
    };
    static std::string messageOf(j_common_ptr info);
    static boolean fill(j_decompress_ptr info);
    static boolean resync(j_decompress_ptr info, int wanted);
    static void passOver(j_decompress_ptr info, long count);
    void nextLine(JSAMPROW line);

    Errors errors_;
    Source source_;
    jpeg_decompress_struct info_{};
    bool isInked_ = false;
    std::vector<std::uint8_t> line_;
};

} // namespace velara::decode
