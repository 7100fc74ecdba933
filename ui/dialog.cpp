#include "dialog.h"

#include "clicklabel.h"
#include "logging.h"
#include "objectregistry.h"
#include "titlebar.h"
#include "widgetlook.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMutex>
#include <QPushButton>
#include <QQueue>
#include <QVBoxLayout>
#include <QVariant>
#include <algorithm>
#include <iterator>

namespace {

struct QueuedAnswer
{
    UserQuestion::Button button;
    bool checked;
};

QMutex answersMutex;
QQueue<QueuedAnswer>& queuedAnswers()
{
    static QQueue<QueuedAnswer> answers;
    return answers;
}

bool takeQueuedAnswer(QueuedAnswer* answer)
{
    QMutexLocker locker(&answersMutex);
    if (queuedAnswers().isEmpty())
        return false;
    *answer = queuedAnswers().dequeue();
    return true;
}

QString iconResource(int iconKind)
{
    switch (iconKind) {
    case Dialog::IconLogo:
        return QStringLiteral(":/image/icn_logo.png");
    case Dialog::IconWarning:
        return QStringLiteral(":/image/icn_warning.png");
    case Dialog::IconClose:
        return QStringLiteral(":/image/mtb_cloes.png");
    default:
        return QString();
    }
}

constexpr int IconSize = 48;

constexpr UserQuestion::Button QuestionButtons[] = {
    UserQuestion::Ok,     UserQuestion::Cancel,   UserQuestion::Yes,   UserQuestion::No,
    UserQuestion::Delete, UserQuestion::Continue, UserQuestion::Reset, UserQuestion::Import,
};

UserQuestion::Button meaningOfText(const QString& text)
{
    if (text.isEmpty())
        return UserQuestion::NoButton;
    for (UserQuestion::Button button : QuestionButtons) {
        if (text == UserQuestion::buttonText(button))
            return button;
    }
    return UserQuestion::NoButton;
}

} // namespace

Dialog::Dialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Dialog"));
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setWindowTitle(tr("Dialog"));
    buildForm();
    setupTitleBar();
}

Dialog::~Dialog() = default;

void Dialog::buildForm()
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("DialogFrame"));
    frame->setAttribute(Qt::WA_StyledBackground);
    outer->addWidget(frame);

    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->setContentsMargins(0, 0, 0, 16);
    frameLayout->setSpacing(0);
    m_titleBar = new TitleBar(TitleBar::CloseButton, frame);
    m_titleBar->setLogoVisible(false);
    frameLayout->addWidget(m_titleBar);

    auto* body = new QHBoxLayout;
    body->setContentsMargins(24, 12, 24, 12);
    body->setSpacing(16);
    m_icon = new QLabel(tr("icon"), frame);
    m_icon->setObjectName(QStringLiteral("DialogIcon"));
    m_icon->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    body->addWidget(m_icon, 0, Qt::AlignTop);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(6);
    m_subject = new QLabel(tr("subject text"), frame);
    m_subject->setObjectName(QStringLiteral("DialogSubject"));
    m_subject->setWordWrap(true);
    m_text = new QLabel(frame);
    m_text->setObjectName(QStringLiteral("DialogText"));
    m_text->setWordWrap(true);
    m_checkBox = new QCheckBox(tr("Don't show again"), frame);
    m_checkBox->setObjectName(QStringLiteral("DialogCheckBox"));
    texts->addWidget(m_subject);
    texts->addWidget(m_text);
    texts->addSpacing(6);
    texts->addWidget(m_checkBox);
    body->addLayout(texts, 1);
    frameLayout->addLayout(body);

    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(24, 4, 24, 0);
    buttons->setSpacing(10);
    buttons->addStretch(1);
    const char* names[3] = {"DialogButtonLeft", "DialogButtonMid", "DialogButtonRight"};
    const QString defaults[3] = {tr("other"), tr("other"), tr("Cancel")};
    for (int i = 0; i < 3; ++i) {
        m_buttons[i] = new QPushButton(defaults[i], frame);
        m_buttons[i]->setObjectName(QLatin1String(names[i]));
        m_buttons[i]->setMinimumWidth(96);
        m_buttons[i]->setAutoDefault(false);
        buttons->addWidget(m_buttons[i]);
    }
    frameLayout->addLayout(buttons);

    connect(m_buttons[LeftButton], &QPushButton::clicked, this, &Dialog::onPB_Clicked_Left);
    connect(m_buttons[MidButton], &QPushButton::clicked, this, &Dialog::onPB_Clicked_Mid);
    connect(m_buttons[RightButton], &QPushButton::clicked, this, &Dialog::onPB_Clicked_Right);
    connect(m_checkBox, &QCheckBox::stateChanged, this, &Dialog::onCheckBoxStateChanged);
}

void Dialog::setupTitleBar()
{
    m_titleBar->setTitle(QString());
    ClickLabel* close = m_titleBar->button(TitleBar::CloseButton);
    close->setObjectName(QStringLiteral("SystemBtn_Close"));
    connect(close, &ClickLabel::mouseEnterLeaveEvent, this, &Dialog::onTitleBarButtonMouseEvent);
    connect(close, &ClickLabel::mouseClicked, this, &QWidget::hide);

    // The main window tells us whether the application is active; without one
    // (tests, early start-up) the dialog keeps its active look.
    if (QObject* mainWindow = ObjectRegistry::find(ComponentId::MainWindow))
        connect(mainWindow, SIGNAL(appStateChange(bool)), this, SLOT(onAppStateChange(bool)));
}

void Dialog::setupDialog(const QString& subject, const QString& text, const QString& leftText, const QString& midText,
                         const QString& rightText, const QString& checkBoxText, int iconKind, int defaultButton)
{
    m_subject->setText(subject);
    m_subject->setVisible(!subject.isEmpty());
    m_text->setText(text);
    m_text->setVisible(!text.isEmpty());

    const QString buttonTexts[3] = {leftText, midText, rightText};
    for (int i = 0; i < 3; ++i) {
        m_meanings[i] = meaningOfText(buttonTexts[i]);
        m_buttons[i]->setText(buttonTexts[i]);
        m_buttons[i]->setVisible(!buttonTexts[i].isEmpty());
        const bool isDefault = i == defaultButton;
        m_buttons[i]->setDefault(isDefault);
        WidgetLook::setStyleProperty(m_buttons[i], "default", isDefault);
    }
    if (defaultButton >= 0 && defaultButton < 3 && m_buttons[defaultButton]->isVisibleTo(this))
        m_buttons[defaultButton]->setFocus();

    m_checkBox->setText(checkBoxText);
    m_checkBox->setChecked(false);
    m_checkBox->setVisible(!checkBoxText.isEmpty());
    m_checked = false;

    const QString iconPath = iconResource(iconKind);
    const QPixmap pixmap = iconPath.isEmpty() ? QPixmap() : QPixmap(iconPath);
    m_icon->clear();
    if (!pixmap.isNull())
        m_icon->setPixmap(pixmap.scaled(IconSize, IconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    m_icon->setVisible(!pixmap.isNull());

    m_answer.clear();
    m_answerButton = UserQuestion::NoButton;
    adjustSize();
}

void Dialog::setupQuestion(const UserQuestion& question)
{
    setTitle(question.title);
    QString texts[UserQuestion::SlotCount];
    for (int slot = 0; slot < UserQuestion::SlotCount; ++slot)
        texts[slot] = UserQuestion::buttonText(question.buttons[slot]);
    setupDialog(question.subject, question.text, texts[LeftButton], texts[MidButton], texts[RightButton],
                question.checkBoxText, question.icon, question.slotOf(question.defaultButton));
    // Two buttons may share a translation; the question knows which is which.
    for (int slot = 0; slot < UserQuestion::SlotCount; ++slot)
        m_meanings[slot] = question.buttons[slot];
}

void Dialog::setTitle(const QString& title)
{
    m_titleBar->setTitle(title);
}

QString Dialog::answer() const
{
    return m_answer;
}

UserQuestion::Button Dialog::answerButton() const
{
    return m_answerButton;
}

bool Dialog::isChecked() const
{
    return m_checked;
}

int Dialog::exec()
{
    QueuedAnswer queued;
    if (takeQueuedAnswer(&queued)) {
        m_answerButton = queued.button;
        const int slot =
            int(std::find(std::begin(m_meanings), std::end(m_meanings), queued.button) - std::begin(m_meanings));
        m_answer = slot < 3 ? m_buttons[slot]->text() : UserQuestion::buttonText(queued.button);
        m_checked = queued.checked;
        LOG_MSG(QStringLiteral("answered without showing: \"%1\"").arg(m_answer));
        return QDialog::Accepted;
    }
    return QDialog::exec();
}

void Dialog::setNextAnswer(UserQuestion::Button button, bool checked)
{
    QMutexLocker locker(&answersMutex);
    queuedAnswers().enqueue({button, checked});
}

UserAnswer Dialog::ask(const UserQuestion& question)
{
    Dialog dialog(qobject_cast<QWidget*>(ObjectRegistry::find(ComponentId::MainWindow)));
    dialog.setupQuestion(question);
    dialog.exec();
    return {dialog.answerButton(), dialog.isChecked()};
}

void Dialog::clearNextAnswers()
{
    QMutexLocker locker(&answersMutex);
    queuedAnswers().clear();
}

QPushButton* Dialog::buttonAt(int index) const
{
    return index >= 0 && index < 3 ? m_buttons[index] : nullptr;
}

QCheckBox* Dialog::checkBox() const
{
    return m_checkBox;
}

QLabel* Dialog::iconLabel() const
{
    return m_icon;
}

ClickLabel* Dialog::closeButton() const
{
    return m_titleBar->button(TitleBar::CloseButton);
}

void Dialog::answerWith(int slot)
{
    m_answer = m_buttons[slot]->text();
    m_answerButton = m_meanings[slot];
    close();
}

void Dialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel)) {
        for (int slot = 0; slot < 3; ++slot) {
            if (m_meanings[slot] == UserQuestion::Cancel && m_buttons[slot]->isVisibleTo(this)) {
                event->accept();
                answerWith(slot);
                return;
            }
        }
    }
    QDialog::keyPressEvent(event);
}

void Dialog::onPB_Clicked_Left()
{
    answerWith(LeftButton);
}

void Dialog::onPB_Clicked_Mid()
{
    answerWith(MidButton);
}

void Dialog::onPB_Clicked_Right()
{
    answerWith(RightButton);
}

void Dialog::onCheckBoxStateChanged(int state)
{
    m_checked = state == Qt::Checked;
}

void Dialog::onTitleBarButtonMouseEvent(ClickLabel* pad, QEvent* e)
{
    TitleBar::updateButtonHover(pad, e);
}

void Dialog::onAppStateChange(bool isAppActive)
{
    m_titleBar->setActiveLook(isAppActive);
}
