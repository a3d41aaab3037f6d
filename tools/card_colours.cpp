// Tells how far apart card colours are for different eyes, and how well white numbers show on them.
//   card_colours RED,GREEN,BLUE ...      card_colours 40,0,0 0,0,90 110,90,100 60,100,250 220,40,0
// Distances are those of the Lab colour space (1976), where about 2 can just be seen.
#include "runtime/contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <vector>

using namespace tessarine;

namespace
{

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

Triple Times(const Matrix& matrix, const Triple& v)
{
    const auto row = [&](const Triple& r) { return r[0] * v[0] + r[1] * v[1] + r[2] * v[2]; };
    return {row(matrix[0]), row(matrix[1]), row(matrix[2])};
}

constexpr Matrix ToXyz = {
    {{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};

struct Eye {
    const char* name;
    Matrix sees;
};
/// How eyes see light, by Machado, Oliveira and Fernandes (2009).
constexpr std::array<Eye, 4> Eyes = {{{"all cones", {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}},
                                      {"no red cones",
                                       {{{0.152286, 1.052583, -0.204868},
                                         {0.114503, 0.786281, 0.099216},
                                         {-0.003882, -0.048116, 1.051998}}}},
                                      {"no green cones",
                                       {{{0.367322, 0.860646, -0.227968},
                                         {0.280085, 0.672501, 0.047413},
                                         {-0.011820, 0.042940, 0.968881}}}},
                                      {"no blue cones",
                                       {{{1.255528, -0.076749, -0.178779},
                                         {-0.078411, 0.930809, 0.147602},
                                         {0.004733, 0.691367, 0.303900}}}}}};

/// Where an eye sees a colour in the Lab space.
Triple SeenBy(const Eye& eye, Colour colour)
{
    const Triple light = {LightOf(clrRed(colour)), LightOf(clrGreen(colour)), LightOf(clrBlue(colour))};
    Triple seen = Times(eye.sees, light);
    std::ranges::transform(seen, seen.begin(), [](double v) { return std::clamp(v, 0.0, 1.0); });
    const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const auto [x, y, z] = Times(ToXyz, seen);
    return {116 * f(y), 500 * (f(x / 0.9505) - f(y)), 200 * (f(y) - f(z / 1.089))};
}

} // namespace

int main(int count, char** words)
{
    std::vector<Colour> colours;
    for (int i = 1; i < count; ++i) {
        int red = 0, green = 0, blue = 0;
        if (std::sscanf(words[i], "%d,%d,%d", &red, &green, &blue) != 3) { // NOLINT(cert-err34-c)
            std::fprintf(stderr, "%s is no colour: three numbers from 0 to 255, as in 40,0,0\n",
                         words[i]);
            return 1;
        }
        colours.push_back(Rgb(red, green, blue));
        std::printf("%s: white stands out %.1f to 1\n", words[i], Contrast(White, colours.back()));
    }
    for (const Eye& eye : Eyes) {
        double least = 1000;
        for (std::size_t i = 0; i < colours.size(); ++i) {
            const Triple one = SeenBy(eye, colours[i]);
            for (std::size_t j = 0; j < i; ++j) {
                const Triple other = SeenBy(eye, colours[j]);
                least =
                    std::min(least, std::hypot(one[0] - other[0], one[1] - other[1], one[2] - other[2]));
            }
        }
        std::printf("%s: the nearest two are %.1f apart\n", eye.name, least);
    }
    return 0;
}
