#include "actionlist.h"

#include "accessibility.h"
#include "accessiblebutton.h"
#include "logging.h"
#include "widgetlook.h"

#include <QCursor>
#include <QDataStream>
#include <QDrag>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHelpEvent>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolTip>

namespace {

// Palette images by action type.
const char* const EntryImages[ActionList::EntryCount] = {"atn_folder", "atn_hotkey",  "atn_macro",
                                                         "atn_launch", "atn_website", "atn_textstring"};
constexpr int LabelPadding = 4;
constexpr char KeyboardFocusProperty[] = "keyboardFocus";

} // namespace

ActionList::ActionList(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("ActionList"));
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    Accessibility::install();
    setAccessibleName(tr("Actions"));
    buildEntries();
}

ActionList::~ActionList() = default;

QString ActionList::actionName(int actionType)
{
    switch (actionType) {
    case 0:
        return tr("Folder");
    case 1:
        return tr("Hotkey");
    case 2:
        return tr("Macro");
    case 3:
        //: The action that starts a program or opens a file or folder.
        return tr("Launch");
    case 4:
        return tr("Website");
    case 5:
        return tr("Text String");
    default:
        return QString();
    }
}

QMimeData* ActionList::createMimeData(int actionType)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << qint32(actionType);
    auto* mime = new QMimeData;
    mime->setData(QStringLiteral("VSE/ActionList-item"), bytes);
    return mime;
}

void ActionList::buildEntries()
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (int i = 0; i < EntryCount; ++i) {
        Entry entry;
        entry.index = i;
        const QString image = QLatin1String(EntryImages[i]);
        entry.normal = QPixmap(WidgetLook::imagePath(image));
        entry.highlighted = QPixmap(WidgetLook::imagePath(image + QStringLiteral("_press")));
        entry.label = new QLabel(this);
        entry.label->setObjectName(QStringLiteral("ActionListItem"));
        entry.label->setFixedSize(entry.iconSize + QSize(LabelPadding, LabelPadding));
        entry.label->setAlignment(Qt::AlignCenter);
        entry.label->setToolTip(actionName(i));
        entry.label->setAccessibleName(actionName(i));
        // The palette itself handles the mouse, so presses, drags and hover
        // are seen in one coordinate system.
        entry.label->setAttribute(Qt::WA_TransparentForMouseEvents);
        layout->addWidget(entry.label);
        m_entries.append(entry);
        showEntry(i, false, "false");
    }
    layout->addStretch(1);
    m_settingsButton = makeButton("SettingsButton", QStringLiteral("atn_settings"), tr("Settings"));
    m_favoriteButton = makeButton("FavoriteButton", QStringLiteral("atn_favorites"), tr("My Favorite"));
    layout->addWidget(m_settingsButton);
    layout->addWidget(m_favoriteButton);
    connect(m_settingsButton, &QPushButton::clicked, this, &ActionList::onPreferenceButoonPressed);
    connect(m_favoriteButton, &QPushButton::clicked, this, &ActionList::onFavoriteButtonMousePressed);
}

QPushButton* ActionList::makeButton(const char* objectName, const QString& image, const QString& toolTip)
{
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(objectName));
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    // Reached with Tab, not taken by a click; Enter presses it as Space does.
    button->setFocusPolicy(Qt::TabFocus);
    button->setAutoDefault(true);
    const QPixmap pixmap(WidgetLook::imagePath(image));
    if (pixmap.isNull())
        button->setText(toolTip); // still usable without its picture
    else
        button->setIcon(QIcon(pixmap));
    button->setIconSize(QSize(ButtonIconSide, ButtonIconSide));
    button->setProperty("state", QStringLiteral("false"));
    return button;
}

bool ActionList::isValidIndex(int idx) const
{
    return idx >= 0 && idx < m_entries.size();
}

void ActionList::showEntry(int idx, bool highlighted, const char* state)
{
    if (!isValidIndex(idx))
        return;
    const Entry& entry = m_entries.at(idx);
    const QPixmap& pixmap = highlighted ? entry.highlighted : entry.normal;
    if (pixmap.isNull())
        entry.label->clear();
    else
        entry.label->setPixmap(pixmap);
    WidgetLook::setStyleProperty(entry.label, "state", QLatin1String(state));
}

int ActionList::entryAt(const QPoint& pos) const
{
    for (const Entry& entry : m_entries) {
        if (entry.label->geometry().contains(pos))
            return entry.index;
    }
    return -1;
}

int ActionList::selectedIndex() const
{
    return m_selected;
}

int ActionList::hoveredIndex() const
{
    return m_hovered;
}

QLabel* ActionList::entryLabel(int idx) const
{
    return isValidIndex(idx) ? m_entries.at(idx).label : nullptr;
}

void ActionList::setEntryEnabled(int idx, bool enabled)
{
    if (isValidIndex(idx))
        m_entries[idx].enabled = enabled;
}

bool ActionList::isEntryEnabled(int idx) const
{
    return isValidIndex(idx) && m_entries.at(idx).enabled;
}

QDrag* ActionList::createDrag(int idx)
{
    if (!isEntryEnabled(idx))
        return nullptr;
    const Entry& entry = m_entries.at(idx);
    auto* drag = new QDrag(this);
    drag->setMimeData(createMimeData(entry.index));
    drag->setPixmap(entry.highlighted);
    drag->setHotSpot(QPoint(entry.iconSize.width() / 2, entry.iconSize.height() / 2));
    return drag;
}

Qt::DropAction ActionList::execDrag(QDrag* drag)
{
    return drag->exec(Qt::MoveAction);
}

// ---- slots ----

void ActionList::onFavoriteButtonMousePressed()
{
    setFavoriteButtonState("true");
    emit favoriteActionItemSelected();
    emit favoriteWindowRequested();
}

void ActionList::onPreferenceButoonPressed()
{
    emit preferenceRequested();
}

void ActionList::cancelSelectedFavoriteButton()
{
    setFavoriteButtonState("false");
}

void ActionList::setFavoriteButtonState(const char* state)
{
    WidgetLook::setStyleProperty(m_favoriteButton, "state", QLatin1String(state));
}

void ActionList::onButtonViewIndexChanged()
{
    // A key of the grid now owns the form area: the palette lets go quietly.
    cancelSelectedIcon(false);
}

void ActionList::cancelSelectedIcon(bool emitSignal)
{
    if (m_selected < 0)
        return;
    showEntry(m_selected, false, "false");
    const int previous = m_selected;
    m_selected = -1;
    AccessibleButton::announceSelection(entryLabel(previous));
    if (emitSignal)
        emit actionItemSelected(-1);
}

void ActionList::cancelPreviousAndThenSelectIcon(int idx)
{
    if (!logMsgWhenRetFail(isValidIndex(idx), QStringLiteral("palette index out of range: %1!!").arg(idx)))
        return;
    cancelSelectedIcon(false);
    showEntry(idx, true, "true");
    m_selected = idx;
    AccessibleButton::announceSelection(entryLabel(idx));
    // The keyboard goes on from the entry chosen.
    m_keyboardIdx = idx;
    updateFocusLook();
    emit actionItemSelected(idx);
}

void ActionList::cancelHoveredKeyButton()
{
    if (m_hovered >= 0 && m_hovered != m_selected)
        showEntry(m_hovered, false, "false");
    m_hovered = -1;
}

void ActionList::cancelPreviousAndThenHoverKeyButton(int hoveringIdx)
{
    cancelHoveredKeyButton();
    if (hoveringIdx == m_selected)
        return;
    m_hovered = hoveringIdx;
    if (hoveringIdx >= 0)
        showEntry(hoveringIdx, true, "hover");
}

// ---- events ----

bool ActionList::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverMove: {
        const int idx = entryAt(static_cast<QHoverEvent*>(event)->pos());
        if (idx != m_hovered)
            cancelPreviousAndThenHoverKeyButton(idx);
        break;
    }
    case QEvent::HoverLeave:
        cancelHoveredKeyButton();
        break;
    case QEvent::ToolTip:
        if (showToolTip(event))
            return true;
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

// The entry labels let the mouse through, so their tool tips are shown here.
bool ActionList::showToolTip(QEvent* event)
{
    auto* help = static_cast<QHelpEvent*>(event);
    const int idx = entryAt(help->pos());
    if (idx < 0)
        return false;
    QLabel* label = m_entries.at(idx).label;
    QToolTip::showText(help->globalPos(), label->toolTip(), label);
    return true;
}

void ActionList::mousePressEvent(QMouseEvent* event)
{
    m_leftPressed = event->button() == Qt::LeftButton;
    m_focusVisible = false;
    updateFocusLook();
    // Taken here, so that the window behind never starts moving itself.
    event->accept();
}

void ActionList::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_leftPressed || !(event->buttons() & Qt::LeftButton))
        return;
    QDrag* drag = createDrag(entryAt(event->pos()));
    if (!drag)
        return;
    // The release that ends a drag is no click: the selection stays.
    m_leftPressed = false;
    execDrag(drag);
    drag->deleteLater();
    // The drag held the pointer: no hover event told us where it went.
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    const int under = rect().contains(pointer) ? entryAt(pointer) : -1;
    if (under != m_hovered)
        cancelPreviousAndThenHoverKeyButton(under);
}

void ActionList::mouseReleaseEvent(QMouseEvent* event)
{
    const bool click = m_leftPressed && event->button() == Qt::LeftButton;
    m_leftPressed = false;
    if (!click)
        return;
    const int idx = entryAt(event->pos());
    if (idx >= 0 && idx != m_selected)
        cancelPreviousAndThenSelectIcon(idx);
}

// ---- keyboard ----

int ActionList::keyboardIndex() const
{
    return m_keyboardIdx;
}

QPushButton* ActionList::settingsButton() const
{
    return m_settingsButton;
}

QPushButton* ActionList::favoriteButton() const
{
    return m_favoriteButton;
}

void ActionList::keyPressEvent(QKeyEvent* event)
{
    if ((event->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        QWidget::keyPressEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        moveKeyboardIndex(m_keyboardIdx - 1);
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        moveKeyboardIndex(m_keyboardIdx + 1);
        break;
    case Qt::Key_Home:
        moveKeyboardIndex(0);
        break;
    case Qt::Key_End:
        moveKeyboardIndex(m_entries.size() - 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (!event->isAutoRepeat() && isEntryEnabled(m_keyboardIdx))
            emit entryActivated(m_keyboardIdx);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    m_focusVisible = true;
    updateFocusLook();
    event->accept();
}

void ActionList::moveKeyboardIndex(int idx)
{
    if (!isValidIndex(idx) || idx == m_keyboardIdx)
        return;
    m_keyboardIdx = idx;
    updateFocusLook();
    AccessibleButton::announceFocus(entryLabel(idx));
}

void ActionList::focusInEvent(QFocusEvent* event)
{
    // As on the key grid: the frame shows when the keyboard brought the focus.
    if (event->reason() == Qt::MouseFocusReason)
        m_focusVisible = false;
    else if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        m_focusVisible = QGuiApplication::mouseButtons() == Qt::NoButton;
    updateFocusLook();
    QMetaObject::invokeMethod(
        this, [this] { AccessibleButton::announceFocus(hasFocus() ? entryLabel(m_keyboardIdx) : nullptr); },
        Qt::QueuedConnection);
    QWidget::focusInEvent(event);
}

void ActionList::focusOutEvent(QFocusEvent* event)
{
    updateFocusLook();
    QWidget::focusOutEvent(event);
}

void ActionList::updateFocusLook()
{
    const bool shown = m_focusVisible && hasFocus();
    for (const Entry& entry : qAsConst(m_entries))
        WidgetLook::setStyleProperty(entry.label, KeyboardFocusProperty, shown && entry.index == m_keyboardIdx);
}

// ---- accessibility ----

int ActionList::buttonIndexOf(const QWidget* widget) const
{
    for (const Entry& entry : m_entries) {
        if (entry.label == widget)
            return entry.index;
    }
    return -1;
}

QWidget* ActionList::buttonWidget(int idx) const
{
    return entryLabel(idx);
}

bool ActionList::isButtonSelected(int idx) const
{
    return idx >= 0 && idx == m_selected;
}

int ActionList::keyboardButton() const
{
    return m_keyboardIdx;
}

void ActionList::pressButton(int idx)
{
    if (isValidIndex(idx) && idx != m_selected)
        cancelPreviousAndThenSelectIcon(idx);
}
