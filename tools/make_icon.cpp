// Makes the icon file of the program for Windows from the program's own drawing.
//   make_icon FILE
#include "desktop/painter.h"
#include "kit/icons.h"

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QPainter>

#include <array>
#include <cstdio>

namespace
{

/// What the system shows at 100 to 250 percent, from a window's corner to the large tiles.
constexpr std::array Sizes = {16, 20, 24, 32, 40, 48, 64, 96, 256};
constexpr int LargestByte = 255;
constexpr quint32 FileHeadBytes = 6;
constexpr quint32 EntryBytes = 16;
constexpr quint16 BitsPerPixel = 32;

QImage Draw(int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    tessarine::PaintPicture(painter, tessarine::icons::Program(), QRectF(0, 0, pixels, pixels));
    return image;
}

/// A bitmap as icons hold it: no file head, twice the height, the rows from below, and behind them a
/// mask that is not looked at, since the pixels say themselves how far they cover.
QByteArray AsBitmap(const QImage& image)
{
    constexpr quint32 headBytes = 40;
    constexpr int maskBits = 32; // a row of the mask fills whole words
    QBuffer bitmap;
    bitmap.open(QIODevice::WriteOnly);
    QDataStream stream(&bitmap);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << headBytes << image.width() << 2 * image.height() << quint16{1} << BitsPerPixel;
    for (int unused = 0; unused < 6; ++unused) {
        stream << quint32{0};
    }
    for (int y = image.height() - 1; y >= 0; --y) {
        for (int x = 0; x < image.width(); ++x) {
            stream << image.pixel(x, y);
        }
    }
    const int maskWords = (image.width() + maskBits - 1) / maskBits * image.height();
    for (int word = 0; word < maskWords; ++word) {
        stream << quint32{0};
    }
    return bitmap.data();
}

QByteArray AsPng(const QImage& image)
{
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    image.save(&picture, "PNG");
    return picture.data();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_icon FILE\n");
        return 1;
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "%s can't be written\n", argv[1]);
        return 1;
    }
    QDataStream stream(&file);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint16{0} << quint16{1} << quint16{Sizes.size()};
    QByteArray images;
    for (const int size : Sizes) {
        const bool isLarge = size > LargestByte;
        const QByteArray image = isLarge ? AsPng(Draw(size)) : AsBitmap(Draw(size));
        const auto shownSize = static_cast<quint8>(isLarge ? 0 : size);
        const quint32 offset = FileHeadBytes + EntryBytes * quint32{Sizes.size()};
        stream << shownSize << shownSize << quint16{0} << quint16{1} << BitsPerPixel
               << static_cast<quint32>(image.size()) << offset + static_cast<quint32>(images.size());
        images += image;
    }
    stream.writeRawData(images.constData(), static_cast<int>(images.size()));
    return stream.status() == QDataStream::Ok && file.flush() ? 0 : 1;
}
