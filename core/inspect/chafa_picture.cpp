#include "inspect/chafa_picture.h"

#ifdef TINTVERT_CHAFA

#include <chafa.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

namespace tintvert::core {
namespace {

template <auto release>
struct Release {
    void operator()(auto* object) const { release(object); }
};

using Terminal = std::unique_ptr<ChafaTermInfo, Release<chafa_term_info_unref>>;
using Config = std::unique_ptr<ChafaCanvasConfig, Release<chafa_canvas_config_unref>>;
using Canvas = std::unique_ptr<ChafaCanvas, Release<chafa_canvas_unref>>;

Terminal named_terminal() { return Terminal(chafa_term_db_detect(chafa_term_db_get_default(), environ)); }
Terminal any_terminal() { return Terminal(chafa_term_db_get_fallback_info(chafa_term_db_get_default())); }

bool has(const Terminal& terminal, ChafaTermSeq sequence)
{
    return chafa_term_info_have_seq(terminal.get(), sequence) != 0;
}

ChafaCanvasMode colors_of(const Terminal& terminal)
{
    if (has(terminal, CHAFA_TERM_SEQ_SET_COLOR_FGBG_DIRECT)) return CHAFA_CANVAS_MODE_TRUECOLOR;
    return has(terminal, CHAFA_TERM_SEQ_SET_COLOR_FGBG_256) ? CHAFA_CANVAS_MODE_INDEXED_256
                                                            : CHAFA_CANVAS_MODE_INDEXED_16;
}

struct Cell {
    int width = 8, height = 16;  // pixels, where the terminal does not report them
};

Cell cell_of_terminal()
{
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0) return {};
    const Cell cell{size.ws_xpixel / size.ws_col, size.ws_ypixel / size.ws_row};
    return cell.width > 0 && cell.height >= 6 ? cell : Cell{};  // libchafa divides by the sixels in the height
}

ChafaPixelMode mode_of(Drawing drawing)
{
    if (drawing == Drawing::kitty) return CHAFA_PIXEL_MODE_KITTY;
    return drawing == Drawing::sixels ? CHAFA_PIXEL_MODE_SIXELS : CHAFA_PIXEL_MODE_SYMBOLS;
}

}  // namespace

bool has_chafa() { return true; }

Drawing finest_drawing()
{
    const Terminal terminal = named_terminal();
    if (has(terminal, CHAFA_TERM_SEQ_BEGIN_KITTY_IMMEDIATE_IMAGE_V1)) return Drawing::kitty;
    return has(terminal, CHAFA_TERM_SEQ_BEGIN_SIXELS) ? Drawing::sixels : Drawing::symbols;
}

std::string chafa_picture(const Picture& picture, long columns, Drawing drawing)
{
    const Cell cell = cell_of_terminal();
    const long rows = std::max<long>(
        (picture.height * columns * cell.width + picture.width * cell.height / 2) / (picture.width * cell.height), 1);
    const Terminal every = any_terminal();
    Terminal terminal = isatty(STDOUT_FILENO) != 0 ? named_terminal() : any_terminal();

    const Config config(chafa_canvas_config_new());
    chafa_canvas_config_set_geometry(config.get(), static_cast<int>(columns), static_cast<int>(rows));
    chafa_canvas_config_set_cell_geometry(config.get(), cell.width, cell.height);
    chafa_canvas_config_set_pixel_mode(config.get(), mode_of(drawing));
    chafa_canvas_config_set_canvas_mode(config.get(), colors_of(terminal));
    chafa_canvas_config_set_optimizations(config.get(), CHAFA_OPTIMIZATION_REUSE_ATTRIBUTES);
    chafa_term_info_supplement(terminal.get(), every.get());

    Picture opaque = with_8_bits(picture);
    for (size_t alpha = 3; alpha < opaque.bytes.size(); alpha += Picture::samples) opaque.bytes[alpha] = 255;
    const Canvas canvas(chafa_canvas_new(config.get()));
    chafa_canvas_draw_all_pixels(canvas.get(), CHAFA_PIXEL_RGBA8_UNASSOCIATED, opaque.bytes.data(),
                                 static_cast<int>(opaque.width), static_cast<int>(opaque.height),
                                 static_cast<int>(opaque.stride()));
    GString* const printed = chafa_canvas_print(canvas.get(), terminal.get());
    std::string text(printed->str, printed->len);
    g_string_free(printed, 1);
    return text + '\n';
}

}  // namespace tintvert::core

#else

#include "failure.h"

namespace tintvert::core {

bool has_chafa() { return false; }

Drawing finest_drawing() { return Drawing::blocks; }

std::string chafa_picture(const Picture&, long, Drawing)
{
    throw Failure(Exit::usage, "tintvert is built without libchafa, which draws symbols, sixels and kitty's pictures");
}

}  // namespace tintvert::core

#endif
