// The icons of the message box and the program's own, on a grid of 32.
#include "kit/icons.h"

#include "kit/icon_shapes.h"

namespace tessarine::icons
{
namespace
{

constexpr int BoxCells = 32;
constexpr Colour Blue = Rgb(36, 96, 176);
constexpr Colour Red = Rgb(200, 36, 36);
constexpr Colour Yellow = Rgb(255, 208, 48);
constexpr Colour Grey = Rgb(196, 200, 204);
constexpr Colour DarkGrey = Rgb(120, 126, 132);
constexpr Colour Green = Rgb(32, 136, 88);

} // namespace

const Picture& Question()
{
    static const Picture picture = {BoxCells,
                                    {
                                        OutlinedDisc(Blue, Ink, {1.5, 1.5, 30.5, 30.5}),
                                        Bend(Paper, 4, {11, 6, 21, 16}, -90, 270),
                                        Bar(Paper, {14, 14, 18, 21}),
                                        Disc(Paper, {13.5, 22.5, 18.5, 27.5}),
                                    }};
    return picture;
}

const Picture& Exclamation()
{
    static const Picture picture = {BoxCells,
                                    {
                                        Outlined(Yellow, Ink, {{16, 2}, {30.5, 29.5}, {1.5, 29.5}}),
                                        Area(Ink, {{13.5, 11}, {18.5, 11}, {17.5, 21}, {14.5, 21}}),
                                        Disc(Ink, {13.5, 22.5, 18.5, 27.5}),
                                    }};
    return picture;
}

const Picture& Information()
{
    static const Picture picture = {BoxCells,
                                    {
                                        Area(Ink, {{8, 22}, {8, 31}, {18, 22}}),
                                        OutlinedDisc(Paper, Ink, {1.5, 1.5, 30.5, 25.5}),
                                        Area(Paper, {{9, 22}, {9, 29}, {16, 23}}),
                                        Disc(Blue, {13.5, 4, 18.5, 9}),
                                        Area(Blue, {{12, 11},
                                                    {18, 11},
                                                    {18, 20},
                                                    {20, 20},
                                                    {20, 22},
                                                    {12, 22},
                                                    {12, 20},
                                                    {14, 20},
                                                    {14, 13},
                                                    {12, 13}}),
                                    }};
    return picture;
}

const Picture& Error()
{
    static const Picture picture = {BoxCells,
                                    {
                                        OutlinedDisc(Red, Ink, {1.5, 1.5, 30.5, 30.5}),
                                        Area(Paper, {{8, 11},
                                                     {11, 8},
                                                     {16, 13},
                                                     {21, 8},
                                                     {24, 11},
                                                     {19, 16},
                                                     {24, 21},
                                                     {21, 24},
                                                     {16, 19},
                                                     {11, 24},
                                                     {8, 21},
                                                     {13, 16}}),
                                    }};
    return picture;
}

const Picture& Critical()
{
    static const Picture picture = {BoxCells,
                                    {
                                        Outlined(Red, Ink,
                                                 {{10, 1.5},
                                                  {22, 1.5},
                                                  {30.5, 10},
                                                  {30.5, 22},
                                                  {22, 30.5},
                                                  {10, 30.5},
                                                  {1.5, 22},
                                                  {1.5, 10}}),
                                        Area(Paper, {{13, 6}, {19, 6}, {18, 19}, {14, 19}}),
                                        Disc(Paper, {13, 21, 19, 27}),
                                    }};
    return picture;
}

const Picture& Happy()
{
    static const Picture picture = {BoxCells,
                                    {
                                        OutlinedDisc(Yellow, Ink, {1.5, 1.5, 30.5, 30.5}),
                                        Disc(Ink, {9, 9, 13, 15}),
                                        Disc(Ink, {19, 9, 23, 15}),
                                        Bend(Ink, 2, {7, 8, 25, 25}, 200, 140),
                                    }};
    return picture;
}

const Picture& Trash()
{
    static const Picture picture = {BoxCells,
                                    {
                                        Area(Ink, {{6, 9}, {26, 9}, {24, 31}, {8, 31}}),
                                        Area(Grey, {{7.1, 10}, {24.9, 10}, {23.1, 30}, {8.9, 30}}),
                                        Bar(Ink, {12, 2, 20, 6}),
                                        Bar(Grey, {13, 3, 19, 6}),
                                        Bar(Ink, {4, 5, 28, 10}),
                                        Bar(Grey, {5, 6, 27, 9}),
                                        Area(DarkGrey, {{11, 12}, {13, 12}, {13.5, 28}, {11.5, 28}}),
                                        Bar(DarkGrey, {15, 12, 17, 28}),
                                        Area(DarkGrey, {{19, 12}, {21, 12}, {20.5, 28}, {18.5, 28}}),
                                    }};
    return picture;
}

const Picture& Print()
{
    static const Picture picture = {
        BoxCells,
        {
            Bar(Ink, {8, 2, 24, 13}),
            Bar(Paper, {9, 3, 23, 13}),
            Area(Ink, {{3, 12}, {29, 12}, {30, 13}, {30, 25}, {2, 25}, {2, 13}}),
            Bar(Grey, {3, 13, 29, 24}),
            Bar(DarkGrey, {6, 18, 26, 20}),
            Bar(Green, {24, 15, 27, 17}),
            Bar(Ink, {7, 19, 25, 30}),
            Bar(Paper, {8, 19, 24, 29}),
            Bar(Ink, {10, 22, 22, 23}),
            Bar(Ink, {10, 25, 18, 26}),
        }};
    return picture;
}

const Picture& LightOn()
{
    static const Picture picture = {
        BoxCells,
        {
            Outlined(Yellow, Ink, {{14.5, 0.5}, {17.5, 0.5}, {17.5, 4.5}, {14.5, 4.5}}),
            Outlined(Yellow, Ink, {{0.5, 12.5}, {4.5, 12.5}, {4.5, 15.5}, {0.5, 15.5}}),
            Outlined(Yellow, Ink, {{27.5, 12.5}, {31.5, 12.5}, {31.5, 15.5}, {27.5, 15.5}}),
            Outlined(Yellow, Ink, {{3.6, 5.8}, {5.8, 3.6}, {8.4, 6.2}, {6.2, 8.4}}),
            Outlined(Yellow, Ink, {{28.4, 5.8}, {26.2, 3.6}, {23.6, 6.2}, {25.8, 8.4}}),
            Disc(Ink, {7, 6, 25, 24}),
            Area(Ink, {{9, 19}, {23, 19}, {20, 25}, {20, 29}, {18, 31}, {14, 31}, {12, 29}, {12, 25}}),
            Disc(Yellow, {8, 7, 24, 23}),
            Area(Yellow, {{10.2, 20}, {21.8, 20}, {19.2, 24}, {12.8, 24}}),
            Bend(Paper, 2, {11, 10, 21, 20}, 100, 70),
            Bar(Grey, {13, 25, 19, 26}),
            Bar(Grey, {13, 27, 19, 28}),
        }};
    return picture;
}

const Picture& Program()
{
    static const Picture picture = {
        BoxCells,
        {
            // The cards keep to even lines: a title bar shows them at half their size.
            Bar(Ink, {0, 0, 20, 20}),
            Bar(Blue, {2, 2, 18, 18}),
            Bar(Ink, {6, 6, 26, 26}),
            Bar(Yellow, {8, 8, 24, 24}),
            Bar(Ink, {12, 12, 32, 32}),
            Bar(Red, {14, 14, 30, 30}),
            Area(Paper, {{17, 15}, {28, 15}, {28, 18}, {23, 29}, {19.5, 29}, {24.5, 18}, {17, 18}}),
        }};
    return picture;
}

} // namespace tessarine::icons
