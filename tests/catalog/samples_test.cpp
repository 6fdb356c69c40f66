// The samples of a layout stand where the routines read and write them.
#include "samples.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>

#include "catalog.h"
#include "geometry.h"
#include "support/random.h"

namespace tintvert::test {
namespace {

using catalog::Arg;
using Memory = std::vector<uint8_t>;

TEST(Samples, every_layout_has_them_but_the_coded_one)
{
    for (const catalog::Layout& layout : catalog::layouts())
        EXPECT_EQ(catalog::find_samples(layout.name) == nullptr, layout.name == "rle8") << layout.name;
    for (const catalog::SampleForm& form : catalog::sample_forms())
        EXPECT_NE(catalog::find_layout(form.layout), nullptr) << form.layout;
}

TEST(Samples, own_every_bit_of_a_unit_once)
{
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        for (const catalog::Plane& plane : form.planes) {
            std::multiset<int> bits;
            for (const catalog::Sample& sample : plane.fields) {
                EXPECT_LT(sample.pixel, plane.across) << form.layout;
                for (int bit = 0; bit < sample.bits; ++bit)
                    bits.insert(sample.word * plane.word_bytes * 8 + sample.low + bit);
            }
            EXPECT_EQ(bits.size(), static_cast<size_t>(plane.unit_bytes) * 8) << form.layout;
            EXPECT_EQ(std::set<int>(bits.begin(), bits.end()).size(), bits.size()) << form.layout;
        }
    }
}

TEST(Samples, planes_fill_the_frame)
{
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        const catalog::Layout& layout = *catalog::find_layout(form.layout);
        const auto planes = catalog::place_planes(form, 48, 8, layout.line_bytes(48));
        const catalog::PlacedPlane& last = planes.back();
        EXPECT_EQ(last.offset + last.lines * last.stride, catalog::frame_bytes(layout, 48, 8)) << form.layout;
    }
}

TEST(Samples, stores_come_back_and_touch_nothing_else)
{
    Random random(3);
    for (const catalog::SampleForm& form : catalog::sample_forms()) {
        for (const catalog::Plane& plane : form.planes) {
            for (const catalog::Sample& sample : plane.fields) {
                Memory unit = random.bytes(static_cast<size_t>(plane.unit_bytes));
                const Memory before = unit;
                const int64_t own = catalog::load_sample(plane, sample, unit.data());
                catalog::store_sample(plane, sample, unit.data(), ~own);
                EXPECT_EQ(catalog::load_sample(plane, sample, unit.data()),
                          sample.is_signed ? ~own : ~own & ((1 << sample.bits) - 1));
                catalog::store_sample(plane, sample, unit.data(), own);
                EXPECT_EQ(unit, before) << form.layout;
            }
        }
    }
}

// The buffers of one call, each with everything that the call touches.
class Call {
public:
    Call(const catalog::Routine& routine, const catalog::Arguments& arguments) : routine_(routine), call_(arguments)
    {
        const auto contents = catalog::contents(routine, call_);
        const catalog::Extents extents = routine.extents(call_);
        for (const catalog::Content& content : contents) {
            int64_t begin = content.origin, end = content.origin + content.bytes;
            for (const catalog::Touch& touch : extents) {
                if (touch.buffer != content.buffer) continue;
                for (const catalog::Range& range : {touch.read, touch.written}) {
                    if (range.empty()) continue;
                    begin = std::min(begin, range.begin);
                    end = std::max(end, range.end);
                }
            }
            Memory& memory = memory_[content.buffer];
            memory.resize(static_cast<size_t>(end - begin));
            call_[content.buffer] = reinterpret_cast<int64_t>(memory.data() - begin);
            pictures_.push_back({content, memory.data() + (content.origin - begin)});
        }
    }

    Memory frame(bool in) const
    {
        Memory frame;
        for (const auto& [content, at] : pictures_)
            if (in ? content.in : content.out) frame.insert(frame.end(), at, at + content.bytes);
        return frame;
    }

    void fill(const Memory& frame)
    {
        const uint8_t* from = frame.data();
        for (const auto& [content, at] : pictures_) {
            if (!content.in) continue;
            std::copy_n(from, content.bytes, at);
            from += content.bytes;
        }
    }

    void run() { routine_.call(call_); }

private:
    const catalog::Routine& routine_;
    catalog::Arguments call_;
    std::map<Arg, Memory> memory_;
    std::vector<std::pair<catalog::Content, uint8_t*>> pictures_;
};

using Place = std::tuple<int64_t, int64_t, std::string_view>;  // line, pixel, component

struct Value {
    int64_t value;
    int bits;
};

std::map<Place, Value> samples_of(const catalog::SampleForm& form, const Memory& frame, int64_t width, int64_t height)
{
    std::map<Place, Value> values;
    const auto planes =
        catalog::place_planes(form, width, height, catalog::find_layout(form.layout)->line_bytes(width));
    catalog::each_sample(
        planes, width, [&](const auto& placed, const auto& sample, int64_t x, int64_t y, int64_t offset) {
            const auto* unit = frame.data() + offset;
            values[{y, x, sample.component}] = {catalog::load_sample(*placed.plane, sample, unit), sample.bits};
        });
    return values;
}

struct Route {
    const char* routine;
    const char* from_form = "";
    const char* to_form = "";
    bool little_endian = false;  // words, of which the lines are walked down
};

// Routines that move samples and compute none: what they write has the upper bits of what they read, at the
// same pixel and in the same component. Components that only one side has are left out.
class MovedSamples : public testing::TestWithParam<Route> {};

TEST_P(MovedSamples, stand_where_the_list_says)
{
    constexpr int64_t width = 48, height = 4;
    const Route& route = GetParam();
    const catalog::Routine& routine = *catalog::find(route.routine);
    catalog::Arguments arguments = catalog::plain_call(routine, {width, height});
    if (route.little_endian) {
        arguments[Arg::swapBytes] = 0;
        arguments[Arg::flipLines] = 1;
    }
    Call call(routine, arguments);
    Random random(4);
    const Memory source = random.bytes(call.frame(true).size());
    call.fill(source);
    call.run();

    const auto& from = *catalog::find_samples(routine.from->name, route.from_form);
    const auto& to = *catalog::find_samples(routine.to->name, route.to_form);
    const auto read = samples_of(from, source, width, height);
    const auto written = samples_of(to, call.frame(false), width, height);
    size_t met = 0;
    for (const auto& [place, out] : written) {
        const auto in = read.find(place);
        if (in == read.end()) continue;
        const int bits = std::min(in->second.bits, out.bits);
        EXPECT_EQ(out.value >> (out.bits - bits), in->second.value >> (in->second.bits - bits))
            << "line " << std::get<0>(place) << ", pixel " << std::get<1>(place) << ", " << std::get<2>(place);
        ++met;
    }
    EXPECT_GE(met, static_cast<size_t>(width * height));
}

INSTANTIATE_TEST_SUITE_P(
    Routes, MovedSamples,
    testing::Values(Route{"tntvt_2vuy_v210"}, Route{"tntvt_v210_2vuy"}, Route{"tntvt_YCbCr10Packed_to_v210"},
                    Route{"tntvt_yuv444_yuv422_8"}, Route{"tntvt_yuv422_yuv444_8"}, Route{"tntvt_planar_2vuy"},
                    Route{"tntvt_2vuy_planar"}, Route{"tntvt_planarfields_2vuy"}, Route{"tntvt_i420_2vuy"},
                    Route{"tntvt_2vuy_i420"}, Route{"tntvt_yv12_2vuy"}, Route{"tntvt_2vuy_yv12"},
                    Route{"tntvt_alphay_to_2yuv"}, Route{"tntvt_2yuv_to_alphay"}, Route{"tntvt_rgba32_bgra32_inplace"},
                    Route{"tntvt_rgb32_bgr32_inplace"}, Route{"tntvt_rgba32_abgr32_inplace"},
                    Route{"tntvt_rgba32_argb32"}, Route{"argb2rgba"}, Route{"tntvt_rgb32_rgb24"},
                    Route{"tntvt_rgba32_bgr24_inplace"}, Route{"tntvt_rgb24_rgba32"},
                    Route{"tntvt_rgb24_bgra32_inplace"}, Route{"tntvt_rgb24_bgr32_inplace"},
                    Route{"tntvt_macbgr24_macargb32_inplace"}, Route{"tntvt_rgb16_rgb32"}, Route{"tntvt_rgb48_rgba32"},
                    Route{"tntvt_rgba64_rgba32"}, Route{"tntvt_bgra64_rgba32"}, Route{"tntvt_argb64_rgba32"},
                    Route{"tntvt_abgr64_rgba32"}, Route{"tntvt_rgba32_rgba64"}, Route{"tntvt_rgba32_argb64"},
                    Route{"tntvt_bgra32_rgba64"}, Route{"tntvt_rgb10_rgba32", "big"},
                    Route{"tntvt_rgb10_rgba32", "little", "", true}, Route{"tntvt_rgb12_bgr48", "dpx"},
                    Route{"tntvt_rgb48_12_rgb12", "", "tiff"}, Route{"tntvt_argb64be_rgba64"},
                    Route{"tntvt_argb64be_rgba32"}),
    [](const auto& route) {
        return std::string(route.param.routine) + (route.param.little_endian ? "_little_endian" : "");
    });

}  // namespace
}  // namespace tintvert::test
