#include "support/random_call.h"

#include "geometry.h"
#include "refusals.h"

namespace tintvert::test {
namespace {

using catalog::Arg;

constexpr uint8_t stream[] = {3, 7, 0, 4, 1, 2, 3, 4, 0, 0, 9, 1, 0, 1};
constexpr int64_t fourccs[] = {0x79757632, 0x30313276, 0x30313272, 0x41524742, 0};
constexpr std::string_view layouts[] = {"rgb32", "v210", "2vuy"};
constexpr int64_t depths[] = {16, 12, 10, 8, 40};

bool is_signed(const catalog::Routine& routine, Arg argument)
{
    for (size_t i = 0; i < routine.arguments.size(); ++i)
        if (routine.arguments[i] == argument) return !routine.types[i].starts_with("unsigned");
    return false;
}

catalog::Arguments any_call(Random& random, const catalog::Routine& routine)
{
    const int64_t width = random.between(0, 40), height = random.between(0, 9);
    catalog::Arguments call = plain_call(routine, {width, height, random.between(1, 4), layouts[random.between(0, 2)]});
    if (random.between(0, 1) == 0)
        for (const Arg distance : {Arg::dstStride, Arg::srcStride, Arg::stride, Arg::fieldStride, Arg::dstPitch})
            call[distance] = random.between(is_signed(routine, distance) ? -300 : 0, 300);
    if (random.between(0, 4) == 0) call[Arg::srcStride] = call[Arg::dstStride];
    for (const Arg size : {Arg::width, Arg::height})
        if (is_signed(routine, size) && random.between(0, 7) == 0) call[size] = -call[size];
    call[Arg::mode] = random.between(0, 18);
    call[Arg::bits] = depths[random.between(0, 4)];
    call[Arg::order] = random.between(0, 4);
    call[Arg::fourcc] = fourccs[random.between(0, 4)];
    call[Arg::flags] = random.between(0, 15) << 24;
    call[Arg::threshold] = random.between(-20, 20);
    call[Arg::softness] = random.between(0, 1) * random.between(0, 90);
    call[Arg::startPhase] = random.between(0, 5);
    call[Arg::payloadSize] = random.between(0, 100);
    call[Arg::size] = random.between(0, 1000);
    for (const Arg choice : {Arg::bgra, Arg::bgraOrder, Arg::hasAlpha, Arg::swapBytes, Arg::flipLines, Arg::interlaced,
                             Arg::up, Arg::keepMargins})
        call[choice] = random.between(0, 1);
    catalog::Arguments taken;
    for (const Arg argument : routine.arguments) taken[argument] = call[argument];
    if (takes(routine, Arg::palette)) {
        taken[Arg::src] = reinterpret_cast<int64_t>(stream);
        taken[Arg::streamSize] = sizeof stream;
    }
    return taken;
}

}  // namespace

catalog::Arguments random_call(Random& random, const catalog::Routine& routine)
{
    for (;;) {
        const catalog::Arguments call = any_call(random, routine);
        if (catalog::refusal(routine, call).empty()) return call;
    }
}

}  // namespace tintvert::test
