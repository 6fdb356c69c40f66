// Prints the block of ST 2084 tables as it stands in the library, table after table.
//
// The whole code range stands for the whole range of the curve, 10000 cd/m2; divisors are powers of two, so
// the top codes stay below 1.0 of the curve.
#include <cmath>
#include <cstdio>
#include <functional>

namespace {

// SMPTE ST 2084, exact constants.
constexpr double m1 = 2610.0 / 16384.0, m2 = 2523.0 / 4096.0 * 128.0;
constexpr double c1 = 3424.0 / 4096.0, c2 = 2413.0 / 4096.0 * 32.0, c3 = 2392.0 / 4096.0 * 32.0;

// Normalised luminance to signal.
double inverse_eotf(double luminance)
{
    const double power = std::pow(luminance, m1);
    return std::pow((c1 + c2 * power) / (1.0 + c3 * power), m2);
}

// Signal to normalised luminance.
double eotf(double signal)
{
    const double root = std::pow(signal, 1.0 / m2);
    return std::pow(std::fmax(root - c1, 0.0) / (c2 - c3 * root), 1.0 / m1);
}

unsigned forward(int code, int size)
{
    return static_cast<unsigned>(size * inverse_eotf(static_cast<double>(code) / size));
}

unsigned reverse_12(int code) { return static_cast<unsigned>(4096 * eotf(code / 4096.0)); }

// A straight line from black to white of the video range over codes 64 to 512.
unsigned reverse_10(int code)
{
    if (code < 64) return static_cast<unsigned>(code);
    if (code >= 512) return 940;
    return static_cast<unsigned>(64 + (code - 64) * 876.0 / 448.0 + 0.5);
}

// A power curve from black to white of the video range over codes 16 to 129.
unsigned reverse_8(int code)
{
    if (code <= 16) return static_cast<unsigned>(code);
    if (code >= 129) return 235;
    return static_cast<unsigned>(16 + 219 * std::pow((code - 16) / 113.0, 1.9) + 0.5);
}

void print(const char* name, int size, const std::function<unsigned(int)>& entry)
{
    std::printf("// %s\n", name);
    for (int i = 0; i < size; ++i) std::printf("%u,%s", entry(i), i % 16 == 15 ? "\n" : " ");
}

}  // namespace

int main()
{
    print("ardwRGB_to_SMPTE2048_8Bit", 256, [](int i) { return forward(i, 256); });
    print("ardwSMPTE2048_to_RGB_8Bit", 256, reverse_8);
    print("ardwRGB_to_SMPTE2048_12Bit", 4096, [](int i) { return forward(i, 4096); });
    print("ardwRGB_to_SMPTE2048_10Bit", 1024, [](int i) { return forward(i, 1024); });
    print("ardwSMPTE2048_to_RGB_12Bit", 4096, reverse_12);
    print("ardwSMPTE2048_to_RGB_10Bit", 1024, reverse_10);
}
