#pragma once

#include <QDialog>
#include <QString>

#include "userquestion.h"

class ClickLabel;
class QCheckBox;
class QEvent;
class QKeyEvent;
class QLabel;
class QPushButton;
class TitleBar;

// The editor's one modal message box: own title bar, optional icon, subject,
// text, up to three buttons and an optional check box. After exec() the
// caller reads the text of the clicked button, or what it means.
//
// Esc answers as the Cancel button when one is shown, so a keyboard user
// never confirms by leaving; the title bar's close button answers nothing.
class Dialog : public QDialog
{
    Q_OBJECT
public:
    enum IconKind
    {
        NoIcon = UserQuestion::NoIcon,
        IconLogo = UserQuestion::LogoIcon,       // icn_logo
        IconWarning = UserQuestion::WarningIcon, // icn_warning
        IconClose = UserQuestion::CloseIcon,     // mtb_cloes
    };
    enum DefaultButton
    {
        LeftButton = UserQuestion::LeftSlot,
        MidButton = UserQuestion::MidSlot,
        RightButton = UserQuestion::RightSlot,
    };

    explicit Dialog(QWidget* parent = nullptr);
    ~Dialog() override;

    // Empty texts hide their line, button or check box. A button whose text
    // is one of the question buttons' texts means that button.
    void setupDialog(const QString& subject, const QString& text, const QString& leftText, const QString& midText,
                     const QString& rightText, const QString& checkBoxText, int iconKind, int defaultButton);
    // The same for a question: its buttons mean what the question says.
    void setupQuestion(const UserQuestion& question);
    void setTitle(const QString& title);

    // Text of the clicked button; empty when the dialog was closed otherwise.
    QString answer() const;
    // What the clicked button means; NoButton when closed otherwise.
    UserQuestion::Button answerButton() const;
    bool isChecked() const;

    int exec() override;

    // For tests and non-interactive runs: the next exec() of any Dialog does
    // not show itself and answers as given. Answers queue up in order.
    static void setNextAnswer(UserQuestion::Button button, bool checked = false);
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

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void setupTitleBar();
    void buildForm();
    void answerWith(int slot);

    TitleBar* m_titleBar = nullptr;
    QLabel* m_icon = nullptr;
    QLabel* m_subject = nullptr;
    QLabel* m_text = nullptr;
    QPushButton* m_buttons[3] = {nullptr, nullptr, nullptr};
    QCheckBox* m_checkBox = nullptr;
    UserQuestion::Button m_meanings[3] = {UserQuestion::NoButton, UserQuestion::NoButton, UserQuestion::NoButton};
    QString m_answer;
    UserQuestion::Button m_answerButton = UserQuestion::NoButton;
    bool m_checked = false;
};
