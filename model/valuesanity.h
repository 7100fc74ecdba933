#pragma once

#include <QString>
#include <QVariant>

// Whether a value that came from a file is one the program can use. Qt's own
// stream operators take a colour model, a font's weight or size, an image's
// size as the bytes give them; an out-of-range colour model is not even a
// value of QColor::Spec, and merely copying such a QColor is undefined. So
// values read from export and settings files are looked at here, through the
// QVariant that holds them and without copying them out, before anything
// uses them.
class ValueSanity
{
public:
    // Point and pixel sizes, letter and word spacing of a font.
    static constexpr int MaxFontSize = 1024;

    // Empty when the value can be used as it is; else what is wrong with it,
    // for the log. Only colours, fonts and images can be wrong.
    static QString problem(const QVariant& value);

    // The value, or a default-constructed one of its type when it is wrong
    // (an invalid colour, the default font, a null image). Logs the problem.
    static QVariant usable(const QVariant& value, const QString& what);

private:
    static QString colorProblem(const QVariant& value);
    static QString fontProblem(const QVariant& value);
    static QString imageProblem(int width, int height);
};
