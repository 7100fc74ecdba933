#pragma once

#include "applicationentry.h"
#include "keyitemform.h"

class QLabel;
class QLineEdit;
class QPushButton;

// A launch key: the command line it runs (a program with its arguments, a
// script, a document or a folder).
class LaunchForm : public KeyItemForm
{
    Q_OBJECT
public:
    LaunchForm(KeyItemEditor* editor, QWidget* parent);

    QLineEdit* commandField() const;
    QPushButton* fileButton() const;
    QPushButton* applicationButton() const;
    // Offers the chosen application's name as the title when the key has one.
    QPushButton* useNameButton() const;

    // A file as a command line: quoted when it holds a blank.
    static QString commandFor(const QString& path);

protected:
    void refreshFields(const KeyItem& item) override;

private:
    void chooseFile();
    void chooseApplication();
    void offerName(const QString& name);
    void takeIcon(const ApplicationEntry& application);

    QLineEdit* m_command = nullptr;
    QPushButton* m_file = nullptr;
    QPushButton* m_application = nullptr;
    QWidget* m_nameOffer = nullptr;
    QLabel* m_nameOfferText = nullptr;
    QPushButton* m_useName = nullptr;
    QString m_offeredName;
};
