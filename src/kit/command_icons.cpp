// The icons of the command row: dark lines on white, on a grid of 16.
#include "kit/icons.h"

#include "kit/icon_shapes.h"

namespace tessarine::icons
{
namespace
{

constexpr int RowCells = 16;
constexpr Colour Shade = Rgb(190, 190, 190);

/// A sheet of paper with its upper right corner folded down, and signs on it.
std::vector<Shape> SheetWith(const std::vector<Shape>& signs)
{
    std::vector<Shape> shapes = {
        Area(Ink, {{2, 1}, {11, 1}, {14, 4}, {14, 15}, {2, 15}}),
        Area(Paper, {{3, 2}, {10, 2}, {10, 5}, {13, 5}, {13, 14}, {3, 14}}),
        Area(Shade, {{11, 2.4}, {12.6, 4}, {11, 4}}),
    };
    shapes.insert(shapes.end(), signs.begin(), signs.end());
    return shapes;
}

} // namespace

const Picture& OpenFolder()
{
    static const Picture picture = {
        RowCells,
        {
            Area(Ink, {{1, 14}, {1, 3}, {2, 2}, {6, 2}, {8, 4}, {13, 4}, {13, 14}}),
            Area(Shade, {{2, 13}, {2, 3.4}, {2.4, 3}, {5.6, 3}, {7.6, 5}, {12, 5}, {12, 13}}),
            Area(Ink, {{4, 7}, {16, 7}, {13, 14}, {1, 14}}),
            Area(Paper, {{4.7, 8}, {14.5, 8}, {12.3, 13}, {2.5, 13}}),
        }};
    return picture;
}

const Picture& FloppyDisk()
{
    static const Picture picture = {RowCells,
                                    {
                                        Area(Ink, {{1, 1}, {13, 1}, {15, 3}, {15, 15}, {1, 15}}),
                                        Bar(Paper, {4, 1, 12, 6}),
                                        Bar(Ink, {9, 2, 11, 5}),
                                        Bar(Paper, {3, 8, 13, 14}),
                                        Bar(Ink, {5, 10, 11, 11}),
                                        Bar(Ink, {5, 12, 11, 13}),
                                    }};
    return picture;
}

const Picture& ScoreSheet()
{
    static const Picture picture = {RowCells,
                                    {
                                        Bar(Ink, {2, 1, 14, 15}),
                                        Bar(Paper, {3, 5, 13, 14}),
                                        Bar(Paper, {4, 2, 9, 4}),
                                        Bar(Paper, {10, 2, 12, 4}),
                                        Bar(Ink, {4, 6, 9, 7}),
                                        Bar(Ink, {10, 6, 12, 7}),
                                        Bar(Ink, {4, 8, 9, 9}),
                                        Bar(Ink, {10, 8, 12, 9}),
                                        Bar(Ink, {4, 10, 9, 11}),
                                        Bar(Ink, {10, 10, 12, 11}),
                                        Bar(Ink, {4, 12, 9, 13}),
                                        Bar(Ink, {10, 12, 12, 13}),
                                    }};
    return picture;
}

const Picture& ColourStripes()
{
    static const Picture picture = {RowCells,
                                    {
                                        Bar(Ink, {1, 2, 15, 14}),
                                        Bar(Rgb(224, 40, 40), {2, 3, 4, 13}),
                                        Bar(Rgb(255, 176, 32), {4, 3, 6, 13}),
                                        Bar(Rgb(255, 240, 64), {6, 3, 8, 13}),
                                        Bar(Rgb(48, 184, 64), {8, 3, 10, 13}),
                                        Bar(Rgb(40, 104, 232), {10, 3, 12, 13}),
                                        Bar(Rgb(160, 64, 192), {12, 3, 14, 13}),
                                    }};
    return picture;
}

const Picture& SheetWithCheckMark()
{
    static const Picture picture = {
        RowCells, SheetWith({Area(Ink, {{4, 9}, {5.5, 7.5}, {7, 9}, {10.5, 5.5}, {12, 7}, {7, 12}})})};
    return picture;
}

const Picture& SheetWithTurningArrows()
{
    static const Picture picture = {RowCells, SheetWith({
                                                  Bar(Ink, {4, 7, 9, 8}),
                                                  Bar(Ink, {4, 8, 5, 10}),
                                                  Area(Ink, {{9, 5}, {11.5, 7.5}, {9, 10}}),
                                                  Bar(Ink, {7, 11, 12, 12}),
                                                  Bar(Ink, {11, 9, 12, 11}),
                                                  Area(Ink, {{7, 9}, {7, 14}, {4.5, 11.5}}),
                                              })};
    return picture;
}

const Picture& ExclamationInRing()
{
    static const Picture picture = {RowCells,
                                    {
                                        OutlinedDisc(Paper, Ink, {1.5, 1.5, 14.5, 14.5}),
                                        Bar(Ink, {7, 4, 9, 9}),
                                        Bar(Ink, {7, 10, 9, 12}),
                                    }};
    return picture;
}

const Picture& QuestionMark()
{
    static const Picture picture = {RowCells,
                                    {
                                        Bend(Ink, 2, {5, 2, 11, 8}, -90, 270),
                                        Bar(Ink, {7, 7, 9, 11}),
                                        Bar(Ink, {7, 12, 9, 14}),
                                    }};
    return picture;
}

const Picture& DoorWithArrow()
{
    static const Picture picture = {
        RowCells,
        {
            Bar(Ink, {1, 1, 10, 14}),
            Bar(Shade, {2, 2, 9, 13}),
            Area(Ink, {{1, 1}, {2, 1}, {7, 3}, {7, 16}, {1, 14}}),
            Area(Paper, {{2, 2.1}, {6, 3.7}, {6, 14.7}, {2, 13.3}}),
            Bar(Ink, {4, 8, 5, 10}),
            Area(Ink, {{8, 7}, {11, 7}, {11, 4}, {15, 8}, {11, 12}, {11, 9}, {8, 9}}),
        }};
    return picture;
}

const Picture& ArrowPointingBack()
{
    static const Picture picture = {RowCells,
                                    {
                                        Area(Ink, {{1, 6}, {6, 1}, {6, 11}}),
                                        Bar(Ink, {6, 5, 10, 7}),
                                        Bend(Ink, 2, {6, 6, 14, 14}, -90, 180),
                                        Bar(Ink, {5, 13, 10, 15}),
                                    }};
    return picture;
}

} // namespace tessarine::icons
