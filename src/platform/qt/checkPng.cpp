#include "checkPng.h"

#include "Error.h"
#include "PictureFiles.h"

#include <png.h>

#include <cstdint>
#include <new>
#include <string>

namespace fleetwright {

namespace {

struct PngReading {
    explicit PngReading(std::string_view bytes);
    PngReading(const PngReading&) = delete;
    PngReading& operator=(const PngReading&) = delete;
    ~PngReading() { png_destroy_read_struct(&png, &info, nullptr); }

    void run();

    std::string_view rest;
    std::string fault;
    png_structp png;
    png_infop info = nullptr;
};

[[noreturn]] void endReading(png_structp png, png_const_charp fault) {
    static_cast<PngReading*>(png_get_error_ptr(png))->fault =
        std::string("cannot be read: ") + fault;
    png_longjmp(png, 1);
}

void passWarning(png_structp, png_const_charp) {}

void takeBytes(png_structp png, png_bytep bytes, std::size_t count) {
    auto& reading = *static_cast<PngReading*>(png_get_io_ptr(png));
    if (count > reading.rest.size()) {
        reading.fault = "is cut short";
        png_longjmp(png, 1);
    }
    reading.rest.copy(reinterpret_cast<char*>(bytes), count);
    reading.rest.remove_prefix(count);
}

PngReading::PngReading(std::string_view bytes)
    : rest(bytes),
      png(png_create_read_struct(PNG_LIBPNG_VER_STRING, this, endReading, passWarning)) {
    info = png == nullptr ? nullptr : png_create_info_struct(png);
    if (info == nullptr) {
        throw std::bad_alloc();
    }
    png_set_read_fn(png, this, takeBytes);
    png_set_benign_errors(png, 1);
}

/// Comes back from wherever the library has met a fault. So nothing here may need to be destroyed.
void PngReading::run() {
    if (setjmp(png_jmpbuf(png)) != 0) {
        return;
    }
    png_read_info(png, info);
    if (std::int64_t{png_get_image_width(png, info)} * png_get_image_height(png, info) >
        mostPicturePixels) {
        png_error(png, "it is too large");
    }
    const int passes = png_set_interlace_handling(png);
    png_read_update_info(png, info);
    for (int pass = 0; pass < passes; ++pass) {
        for (png_uint_32 row = 0; row < png_get_image_height(png, info); ++row) {
            png_read_row(png, nullptr, nullptr);
        }
    }
    png_read_end(png, nullptr);
}

}  // namespace

void checkPng(std::string_view bytes) {
    PngReading reading(bytes);
    reading.run();
    if (!reading.fault.empty()) {
        throw Error(reading.fault);
    }
}

}  // namespace fleetwright
