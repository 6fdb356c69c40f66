// libpng leaves its errors by longjmp, which runs no destructor. So the functions that set the jump have
// plain values only; everything with a destructor belongs to their callers.
#include "io/pictures/png_file.h"

#ifdef TINTVERT_LIBPNG

#include <png.h>

#include <csetjmp>
#include <exception>
#include <new>
#include <string>
#include <vector>

#include "failure.h"
#include "io/output_file.h"

namespace tintvert::core {
namespace {

constexpr long most_pixels = 1L << 28;

// What libpng's callbacks share with the code around it.
struct Transfer {
    png_structp png = nullptr;
    png_infop info = nullptr;
    InputFile* source = nullptr;
    OutputFile* target = nullptr;
    std::string error;
    std::exception_ptr thrown;  // by `source` or `target`, on its way past libpng
};

[[noreturn]] void on_error(png_structp png, png_const_charp text)
{
    Transfer& transfer = *static_cast<Transfer*>(png_get_error_ptr(png));
    if (transfer.error.empty()) transfer.error = text;
    png_longjmp(png, 1);
}

void on_warning(png_structp, png_const_charp) {}

void read_bytes(png_structp png, png_bytep to, size_t count)
{
    Transfer& transfer = *static_cast<Transfer*>(png_get_io_ptr(png));
    try {
        if (transfer.source->read_some(to, count) == count) return;
        transfer.error = "the file ends too early";
    } catch (...) {
        transfer.thrown = std::current_exception();
    }
    png_error(png, "read");
}

void write_bytes(png_structp png, png_bytep from, size_t count)
{
    Transfer& transfer = *static_cast<Transfer*>(png_get_io_ptr(png));
    try {
        transfer.target->write(from, count);
        return;
    } catch (...) {
        transfer.thrown = std::current_exception();
    }
    png_error(png, "write");
}

void flush_nothing(png_structp) {}

struct Reader : Transfer {
    explicit Reader(InputFile& file)
    {
        source = &file;
        png = png_create_read_struct(PNG_LIBPNG_VER_STRING, static_cast<Transfer*>(this), on_error, on_warning);
        info = png_create_info_struct(png);
        if (info == nullptr) throw std::bad_alloc();
        png_set_read_fn(png, static_cast<Transfer*>(this), read_bytes);
    }
    ~Reader() { png_destroy_read_struct(&png, &info, nullptr); }
    Reader(const Reader&) = delete;
};

struct Writer : Transfer {
    explicit Writer(OutputFile& file)
    {
        target = &file;
        png = png_create_write_struct(PNG_LIBPNG_VER_STRING, static_cast<Transfer*>(this), on_error, on_warning);
        info = png_create_info_struct(png);
        if (info == nullptr) throw std::bad_alloc();
        png_set_write_fn(png, static_cast<Transfer*>(this), write_bytes, flush_nothing);
    }
    ~Writer() { png_destroy_write_struct(&png, &info); }
    Writer(const Writer&) = delete;
};

// Up to the first pixel, with every kind of file set to come out as four samples a pixel.
bool read_header(png_structp png, png_infop info)
{
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_read_info(png, info);
    png_set_expand(png);
    png_set_gray_to_rgb(png);
    png_set_add_alpha(png, 0xFFFF, PNG_FILLER_AFTER);
    if (png_get_bit_depth(png, info) == 16) png_set_swap(png);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    return true;
}

bool read_lines(png_structp png, png_bytepp lines)
{
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_read_image(png, lines);
    png_read_end(png, nullptr);
    return true;
}

bool write_lines(png_structp png, png_infop info, png_bytepp lines, const Picture& picture, bool opaque)
{
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_set_IHDR(png, info, static_cast<png_uint_32>(picture.width), static_cast<png_uint_32>(picture.height),
                 picture.depth * 8, opaque ? PNG_COLOR_TYPE_RGB : PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_compression_level(png, 4);
    png_write_info(png, info);
    if (opaque) png_set_filler(png, 0, PNG_FILLER_AFTER);
    if (picture.depth == Picture::bits16) png_set_swap(png);
    png_write_image(png, lines);
    png_write_end(png, nullptr);
    return true;
}

std::vector<png_bytep> lines_of(Picture& picture)
{
    std::vector<png_bytep> lines;
    for (long y = 0; y < picture.height; ++y) lines.push_back(picture.line(y));
    return lines;
}

}  // namespace

Picture read_png(InputFile& file)
{
    const auto refuse = [&](const std::string& why) {
        return Failure(Exit::no_file, "cannot read {}: {}", file.name(), why);
    };
    png_byte signature[8];
    const size_t got = file.read_some(signature, sizeof signature);
    if (got == 0) throw refuse("the file is empty");
    if (png_sig_cmp(signature, 0, got) != 0) throw refuse("it is no PNG file");
    if (got < sizeof signature) throw refuse("the file ends too early");

    Reader reader(file);
    const auto need = [&](bool went_well) {
        if (went_well) return;
        if (reader.thrown) std::rethrow_exception(reader.thrown);
        throw refuse(reader.error);
    };
    png_set_sig_bytes(reader.png, sizeof signature);
    need(read_header(reader.png, reader.info));
    const long width = static_cast<long>(png_get_image_width(reader.png, reader.info));
    const long height = static_cast<long>(png_get_image_height(reader.png, reader.info));
    if (width * height > most_pixels)
        throw Failure(Exit::unsafe, "{} is {} x {} pixels; more than {} are refused", file.name(), width, height,
                      most_pixels);

    const bool deep = png_get_bit_depth(reader.png, reader.info) == 16;
    Picture picture(width, height, deep ? Picture::bits16 : Picture::bits8);
    need(read_lines(reader.png, lines_of(picture).data()));
    return picture;
}

void write_png(const std::filesystem::path& path, const Picture& picture)
{
    OutputFile file(path);
    Writer writer(file);
    Picture& lines_only_read = const_cast<Picture&>(picture);  // libpng 1.6 takes its rows without const
    if (!write_lines(writer.png, writer.info, lines_of(lines_only_read).data(), picture, is_opaque(picture))) {
        if (writer.thrown) std::rethrow_exception(writer.thrown);
        throw Failure(Exit::no_file, "cannot write {}: {}", path.string(), writer.error);
    }
    file.commit();
}

}  // namespace tintvert::core

#else

#include "failure.h"

namespace tintvert::core {

Picture read_png(InputFile& file)
{
    throw Failure(Exit::no_file, "cannot read {}: tintvert is built without libpng, which reads PNG", file.name());
}

void write_png(const std::filesystem::path& path, const Picture&)
{
    throw Failure(Exit::no_file, "cannot write {}: tintvert is built without libpng, which writes PNG", path.string());
}

}  // namespace tintvert::core

#endif
