// SPDX-License-Identifier: MIT

#include "jpeg/GreyPicture.h"

#include "common/Error.h"

#include <array>
#include <csetjmp>
#include <cstdio> // jpeglib.h needs it

#include <jpeglib.h>

#include <jerror.h>

namespace ovisto {

namespace {

constexpr std::int64_t kMostPixels = 400'000'000;
constexpr std::int64_t kMostPixelsPerByte = 2000;         ///< a picture of one colour has some 200
constexpr std::int64_t kMostCoefficientBytes = 256 << 20; ///< of a picture in several scans
constexpr int kMostScans = 100;
constexpr int kMostWarnings = 100;
constexpr unsigned kLeastSide = 96; ///< pixels left by the reduction

/// What the library's functions of ours need. It has plain members only: an error jumps over the library's frames, and
/// over whatever C++ would have to tidy up there.
struct Decoding {
    jpeg_decompress_struct picture;
    jpeg_error_mgr errors;
    jpeg_source_mgr source;
    jpeg_progress_mgr progress;
    std::jmp_buf failed;
    const JpegSource* bytes;
    std::int64_t offset;
    std::array<std::uint8_t, 16384> buffer;
};

Decoding& decodingOf(j_common_ptr picture)
{
    return *static_cast<Decoding*>(picture->client_data);
}

[[noreturn]] void fail(j_common_ptr picture)
{
    // No exception may pass through the library's C.
    std::longjmp(decodingOf(picture).failed, 1); // NOLINT(cert-err52-cpp)
}

/// Data that ends before the picture does is a warning to the library, and the rest is grey.
void countWarning(j_common_ptr picture, int level)
{
    if (level >= 0)
        return;
    const int code = picture->err->msg_code;
    if (code == JWRN_HIT_MARKER || code == JWRN_JPEG_EOF || ++picture->err->num_warnings > kMostWarnings)
        fail(picture);
}

void checkProgress(j_common_ptr picture)
{
    if (decodingOf(picture).picture.input_scan_number > kMostScans)
        fail(picture);
}

/// The next bytes into the buffer; 0 at the end and where they cannot be read.
std::size_t readBytes(Decoding& decoding)
{
    std::size_t size = 0;
    ErrorTrap trap;
    trap.run([&] { size = decoding.bytes->read(decoding.offset, decoding.buffer); });
    decoding.offset += static_cast<std::int64_t>(size);
    return size;
}

boolean fillBuffer(j_decompress_ptr picture)
{
    Decoding& decoding = *static_cast<Decoding*>(picture->client_data);
    decoding.source.bytes_in_buffer = readBytes(decoding);
    decoding.source.next_input_byte = decoding.buffer.data();
    if (decoding.source.bytes_in_buffer == 0)
        fail(reinterpret_cast<j_common_ptr>(picture));
    return TRUE;
}

void skipBytes(j_decompress_ptr picture, long bytes)
{
    Decoding& decoding = *static_cast<Decoding*>(picture->client_data);
    const long there = static_cast<long>(decoding.source.bytes_in_buffer);
    const long inBuffer = bytes < there ? bytes : there;
    decoding.source.next_input_byte += inBuffer;
    decoding.source.bytes_in_buffer -= static_cast<std::size_t>(inBuffer);
    decoding.offset += bytes - inBuffer;
}

void prepare(Decoding& decoding)
{
    decoding.picture.err = jpeg_std_error(&decoding.errors);
    decoding.errors.error_exit = fail;
    decoding.errors.emit_message = countWarning;
    decoding.picture.client_data = &decoding;
    decoding.source.init_source = [](j_decompress_ptr) {};
    decoding.source.fill_input_buffer = fillBuffer;
    decoding.source.skip_input_data = skipBytes;
    decoding.source.resync_to_restart = jpeg_resync_to_restart;
    decoding.source.term_source = [](j_decompress_ptr) {};
    decoding.progress.progress_monitor = checkProgress;
}

bool isReasonable(jpeg_decompress_struct& picture, std::int64_t fileSize)
{
    const std::int64_t pixels = std::int64_t{picture.image_width} * picture.image_height;
    constexpr std::int64_t kCoefficientSize = 2;
    const bool keepsAll = jpeg_has_multiple_scans(&picture) != FALSE;
    return pixels <= kMostPixels && pixels <= kMostPixelsPerByte * fileSize &&
           (!keepsAll || pixels * picture.num_components * kCoefficientSize <= kMostCoefficientBytes);
}

/// By the largest denominator that leaves enough.
void reduce(jpeg_decompress_struct& picture)
{
    const unsigned side = picture.image_width < picture.image_height ? picture.image_width : picture.image_height;
    picture.scale_num = 1;
    picture.scale_denom = 8;
    while (picture.scale_denom > 1 && side / picture.scale_denom < kLeastSide)
        picture.scale_denom /= 2;
}

/// Errors of the library end here. Nothing in it needs tidying up that an error could jump over.
bool decode(Decoding& decoding, GreyPicture& grey)
{
    jpeg_decompress_struct& picture = decoding.picture;
    if (setjmp(decoding.failed) != 0) // NOLINT(cert-err52-cpp): the library knows no other way out
        return false;
    jpeg_create_decompress(&picture);
    picture.src = &decoding.source;
    picture.progress = &decoding.progress;
    jpeg_read_header(&picture, TRUE);
    if (!isReasonable(picture, decoding.bytes->size))
        return false;
    reduce(picture);
    picture.out_color_space = JCS_GRAYSCALE;
    picture.dct_method = JDCT_IFAST;
    jpeg_start_decompress(&picture);
    grey.width = picture.output_width;
    grey.height = picture.output_height;
    grey.pixels.resize(grey.width * grey.height);
    while (picture.output_scanline < picture.output_height) {
        JSAMPROW row = grey.pixels.data() + picture.output_scanline * grey.width;
        jpeg_read_scanlines(&picture, &row, 1);
    }
    return true;
}

} // namespace

std::optional<GreyPicture> greyPicture(const JpegSource& source)
{
    Decoding decoding{};
    decoding.bytes = &source;
    prepare(decoding);
    GreyPicture grey;
    ErrorTrap trap; // the library's memory is given back whatever happens
    bool isWhole = false;
    trap.run([&] { isWhole = decode(decoding, grey); });
    jpeg_destroy_decompress(&decoding.picture);
    trap.raise();
    return isWhole ? std::optional(std::move(grey)) : std::nullopt;
}

} // namespace ovisto
