#include "functiondescription.h"

#include "widgetlook.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

constexpr int DescribedTypes = 6;

const char* const Images[DescribedTypes] = {"dsp_folder", "dsp_hotkey",  "dsp_macro",
                                            "dsp_launch", "dsp_website", "dsp_textstring"};

const char* const Texts[DescribedTypes] = {
    QT_TRANSLATE_NOOP("FunctionDescription",
                      "Folder\nStore an organized group of key actions. Folder can be linked to an application, and "
                      "folder will open automatically when the application is launched."),
    QT_TRANSLATE_NOOP("FunctionDescription",
                      "Hotkey\nA key or a combination of keys used together to perform a task or function on the "
                      "operating system or applications. Recall the hotkey action by pressing on the button."),
    QT_TRANSLATE_NOOP("FunctionDescription",
                      "Macro key\nA sequence of commands or keyboard strokes stored in the assigned key. Recall the "
                      "macro key action by pressing on the button."),
    QT_TRANSLATE_NOOP("FunctionDescription",
                      "Launch\nExecute an application, file, folder path, or command-line by pressing on the button."),
    QT_TRANSLATE_NOOP("FunctionDescription", "Website\nSearch the web or navigate the site by pressing on the button."),
    QT_TRANSLATE_NOOP("FunctionDescription",
                      "Text String\nA sequence of characters defined by users. Text string can be text message, "
                      "source code or script that stored in the assigned key. Recall the text string by pressing on "
                      "the button."),
};

const char* const DragHint =
    QT_TRANSLATE_NOOP("FunctionDescription", "Drag an action from above list and drop into section on the left.");

bool isDescribed(int actionType)
{
    return actionType >= 0 && actionType < DescribedTypes;
}

} // namespace

FunctionDescription::FunctionDescription(int actionType, QWidget* parent) : QWidget(parent), m_actionType(actionType)
{
    setObjectName(QStringLiteral("FunctionDescription"));
    setAttribute(Qt::WA_StyledBackground);
    buildLabels();
    showContent();
}

FunctionDescription::~FunctionDescription() = default;

int FunctionDescription::actionType() const
{
    return m_actionType;
}

QString FunctionDescription::descriptionText(int actionType)
{
    return QCoreApplication::translate("FunctionDescription", isDescribed(actionType) ? Texts[actionType] : DragHint);
}

void FunctionDescription::buildLabels()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(12);
    m_image = new QLabel(this);
    m_image->setObjectName(QStringLiteral("FunctionDescriptionImage"));
    m_image->setAlignment(Qt::AlignCenter);
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("FunctionDescriptionTitle"));
    m_text = new QLabel(this);
    m_text->setObjectName(QStringLiteral("FunctionDescriptionText"));
    m_text->setWordWrap(true);
    m_text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(m_image);
    layout->addWidget(m_title);
    layout->addWidget(m_text);
    layout->addStretch(1);
}

void FunctionDescription::showContent()
{
    const QPixmap picture =
        isDescribed(m_actionType) ? QPixmap(WidgetLook::imagePath(QLatin1String(Images[m_actionType]))) : QPixmap();
    m_image->setPixmap(picture);
    m_image->setVisible(!picture.isNull());

    // A heading line, then the body; the drag hint is body text alone.
    const QString text = descriptionText(m_actionType);
    const int lineEnd = text.indexOf(QLatin1Char('\n'));
    m_title->setText(lineEnd < 0 ? QString() : text.left(lineEnd));
    m_text->setText(text.mid(lineEnd + 1));
    m_title->setVisible(!m_title->text().isEmpty());
}

void FunctionDescription::updateContent(const KeyItem* item)
{
    // The panel describes an action type, not a key: whatever the item, the
    // text of this panel's type stays.
    Q_UNUSED(item)
}
