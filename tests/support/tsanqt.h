#pragma once

#include <QApplication>

// The test application of the ThreadSanitizer build: it tells the sanitizer
// that an event is delivered (see tsanqt.cpp).
class TsanApplication : public QApplication
{
public:
    using QApplication::QApplication;
    bool notify(QObject* receiver, QEvent* event) override;
};
