#pragma once

#include <QDialog>
#include <QString>

#include "userquestion.h"

class ClickLabel;
class QCheckBox;
class QEvent;
class QLabel;
class QPushButton;
class TitleBar;

// The editor's one modal message box: own title bar, optional icon, subject,
// text, up to three buttons and an optional check box. The caller reads the
// text of the clicked button after exec().
class Dialog : public QDialog
{
    Q_OBJECT
public:
    enum IconKind
    {
        NoIcon = 0,
        IconLogo = 1,    // icn_logo
        IconWarning = 2, // icn_warning
        IconClose = 3,   // mtb_cloes
    };
    enum DefaultButton
    {
        LeftButton = 0,
        MidButton = 1,
        RightButton = 2,
    };

    explicit Dialog(QWidget* parent = nullptr);
    ~Dialog() override;

    // Empty texts hide their line, button or check box.
    void setupDialog(const QString& subject, const QString& text, const QString& leftText, const QString& midText,
                     const QString& rightText, const QString& checkBoxText, int iconKind, int defaultButton);
    void setTitle(const QString& title);

    // Text of the clicked button; empty when the dialog was closed otherwise.
    QString answer() const;
    bool isChecked() const;

    int exec() override;

    // For tests and non-interactive runs: the next exec() of any Dialog does
    // not show itself and answers as given. Answers queue up in order.
    static void setNextAnswer(const QString& buttonText, bool checked = false);
    // Shows a question of the model as a modal dialog; the main window
    // installs this as the model's question handler.
    static UserAnswer ask(const UserQuestion& question);
    static void clearNextAnswers();

    QPushButton* buttonAt(int index) const;
    QCheckBox* checkBox() const;
    QLabel* iconLabel() const;
    ClickLabel* closeButton() const;

public slots:
    void onPB_Clicked_Left();
    void onPB_Clicked_Mid();
    void onPB_Clicked_Right();
    void onCheckBoxStateChanged(int state);
    void onTitleBarButtonMouseEvent(ClickLabel* pad, QEvent* e);
    void onAppStateChange(bool isAppActive);

private:
    void setupTitleBar();
    void buildForm();
    void answerWith(QPushButton* button);

    TitleBar* m_titleBar = nullptr;
    QLabel* m_icon = nullptr;
    QLabel* m_subject = nullptr;
    QLabel* m_text = nullptr;
    QPushButton* m_buttons[3] = {nullptr, nullptr, nullptr};
    QCheckBox* m_checkBox = nullptr;
    QString m_answer;
    bool m_checked = false;
};
