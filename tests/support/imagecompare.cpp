#include "imagecompare.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>

double ImageCompare::meanDifference(const QImage& a, const QImage& b)
{
    const QImage left = a.convertToFormat(QImage::Format_RGB32);
    const QImage right =
        b.scaled(a.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32);
    double sum = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb p = left.pixel(x, y);
            const QRgb q = right.pixel(x, y);
            sum += qAbs(qRed(p) - qRed(q)) + qAbs(qGreen(p) - qGreen(q)) + qAbs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * left.width() * left.height());
}

int ImageCompare::largestChannelDelta(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return 256;
    const QImage left = a.convertToFormat(QImage::Format_RGBA8888);
    const QImage right = b.convertToFormat(QImage::Format_RGBA8888);
    int largest = 0;
    for (int y = 0; y < left.height(); ++y)
        for (int i = 0; i < left.width() * 4; ++i)
            largest = qMax(largest, qAbs(int(left.constScanLine(y)[i]) - int(right.constScanLine(y)[i])));
    return largest;
}

QString ImageCompare::renderDirectory()
{
    const QString dir = QCoreApplication::applicationDirPath() + QStringLiteral("/renders");
    QDir().mkpath(dir);
    return dir;
}
