#pragma once

#include "keyactionabstr.h"

#include <QString>

// Launch a program or document, or open a web address: the owner item's
// type tells which.
class KA_Execute : public KeyActionAbstr
{
    Q_OBJECT
public:
    explicit KA_Execute(KeyItem* owner);

    KeyActionType getActionType() const override;
    bool doAction(int param) override;
    bool isValid() const override;
    void reset() override;

    QString path;
    KeyItem* owner = nullptr;
};

// A launch command taken apart: the program (a leading double-quoted run, or
// everything up to the first blank) and the rest of the line.
struct CommandLine
{
    QString program;
    QString rest;
};
CommandLine splitCommandLine(const QString& command);

// Whether a website text names its scheme ("https://...", "mailto:...");
// one that does not is opened as "http://" + text.
bool hasUrlScheme(const QString& text);

// The work of a launch or website key, run on the task thread: start the
// program in its own directory, open a document or folder with the desktop's
// handler, or open the text as a web address.
void executeCmd(const QString& command);
