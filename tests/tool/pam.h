// PAM pictures of red, green, blue and alpha, 8 or 16 bits a sample, as text of bytes.
#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

namespace tintvert::test {

struct Pam {
    unsigned width = 0, height = 0, highest = 65535;
    bool alpha = true;
    std::vector<unsigned> samples;

    unsigned depth() const { return alpha ? 4 : 3; }
};

inline std::string make_pam(const Pam& picture)
{
    std::ostringstream text;
    text << "P7\nWIDTH " << picture.width << "\nHEIGHT " << picture.height << "\nDEPTH " << picture.depth()
         << "\nMAXVAL " << picture.highest << "\nTUPLTYPE " << (picture.alpha ? "RGB_ALPHA" : "RGB") << "\nENDHDR\n";
    for (const unsigned sample : picture.samples) {
        if (picture.highest > 255) text << static_cast<char>(sample >> 8);
        text << static_cast<char>(sample & 255);
    }
    return text.str();
}

// The header in the form that the tool writes. Samples of 8 bits are spread to 16.
inline Pam parse_pam(const std::string& bytes)
{
    Pam picture;
    unsigned depth = 0;
    std::istringstream text(bytes);
    std::string word;
    text >> word >> word >> picture.width >> word >> picture.height >> word >> depth >> word >> picture.highest >>
        word >> word >> word;
    picture.alpha = depth == 4;
    size_t at = bytes.find("ENDHDR\n") + 7;
    const auto next = [&] { return static_cast<unsigned>(static_cast<unsigned char>(bytes.at(at++))); };
    for (unsigned i = 0; i < picture.width * picture.height * depth; ++i) {
        const unsigned first = next();
        picture.samples.push_back(picture.highest > 255 ? first << 8 | next() : first * 257);
    }
    picture.highest = 65535;
    return picture;
}

}  // namespace tintvert::test
