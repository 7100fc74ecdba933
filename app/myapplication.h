#pragma once

#include <QApplication>

// The application object. A request from the desktop to open a file becomes
// the same hand-over request a second start would make, so the running
// instance opens it through one path.
class MyApplication : public QApplication
{
    Q_OBJECT
public:
    MyApplication(int& argc, char** argv);

    bool event(QEvent* e) override;
};
