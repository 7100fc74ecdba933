#pragma once

#include "facehints.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QImage>
#include <QLocale>

struct KeyRenderInfo;
struct SystemReadings;

// Draws a live key face: a figure of the system usage sampler, the clock or
// the date, large enough to read at a glance on the keypad's 72 x 72 screen
// and still when the editor shows the face at 48 x 48 (the 32-key layouts).
//
// The face, on black, in the title's colour:
// - a small caption at the top: the key's title when it has one (first line),
//   else the figure's short name ("CPU", "RAM", "Net B/s"); the date shows its
//   weekday there, a 12-hour clock its AM or PM;
// - the value in bold, as large as fits: "37%", the rates received and sent
//   with a down and an up arrow, "14:05", the day of the month over its
//   month's name;
// - with FaceHints::LiveGraph, a graph of the last 60 samples along the
//   bottom (percentages on a 0-100 scale, rates on the largest seen).
//
// A sampled figure not known yet gives a null image: the caller draws the
// static face instead. Safe on any thread, like KeyFaceRenderer.
class LiveFacePainter
{
    Q_DECLARE_TR_FUNCTIONS(LiveFacePainter)

public:
    static QImage paint(const KeyRenderInfo& face, const SystemReadings& readings, const QDateTime& now,
                        const QLocale& locale = QLocale());

    // "850", "12K", "1.2M": bytes per second in at most four characters.
    static QString shortRate(double bytesPerSecond);
    // The value text of a face (the percentage, "14:05", the day), empty
    // when the figure is not known; what tests and the accessible key names
    // can read without pixels.
    static QString valueText(FaceHints::LiveKind kind, const SystemReadings& readings, const QDateTime& now,
                             const QLocale& locale = QLocale());
};
