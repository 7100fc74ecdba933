#include "keyitemgridview.h"

#include "accessibility.h"
#include "accessiblebutton.h"
#include "actionlist.h"
#include "buttonlayoutconfig.h"
#include "dragpayload.h"
#include "keybuttonimage.h"
#include "keyfacerenderer.h"
#include "keygridcontextmenu.h"
#include "keygridcontroller.h"
#include "keygridgeometry.h"
#include "keyitemmodel.h"
#include "logging.h"
#include "objectregistry.h"
#include "widgetlook.h"

#include <QCursor>
#include <QDrag>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QHoverEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr char StateProperty[] = "state";
constexpr char StateSelected[] = "true";
constexpr char StateHovered[] = "hover";
constexpr char StateNone[] = "false";
// The style sheet's keyboard focus frame, on a key or on the whole grid.
constexpr char KeyboardFocusProperty[] = "keyboardFocus";

// Light enough to stand out on the black key background and on key images.
// Light and neutral: selected and hovered keys both carry it, and the style
// sheet's border around the key tells the two apart.
constexpr QRgb SelectionFrameColor = 0xffdfe5ee;

} // namespace

KeyItemGridView::KeyItemGridView(QWidget* parent) : QWidget(parent)
{
    qRegisterMetaType<KeyIdx>("KeyIdx");
    setObjectName(QStringLiteral("KeyItemGridView"));
    setAttribute(Qt::WA_Hover);
    setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_StyledBackground); // the focus frame around the grid
    Accessibility::install();
    //: The keys of the keypad, as the editor shows them.
    setAccessibleName(tr("Keys"));
    // The menu opens on the right button's release, after the key under it
    // was selected; all right-button events must reach this widget.
    setContextMenuPolicy(Qt::PreventContextMenu);

    m_container = new QWidget(this);
    m_container->setObjectName(QStringLiteral("KeyGridContainer"));

    m_dragHoverTimer = new QTimer(this);
    m_dragHoverTimer->setSingleShot(true);
    m_dragHoverTimer->setInterval(DragHoverDelayMs);
    connect(m_dragHoverTimer, &QTimer::timeout, this, &KeyItemGridView::onTimerTimeout);

    m_menu = new KeyGridContextMenu(this);
    connectMenu();
    m_controller = new KeyGridController(this);
    connectController();

    if (ButtonLayoutConfig* config = layouts()) {
        if (ButtonLayoutConfig::isValidLayout(config->currentLayout()))
            createKeyButtons(config->currentLayout());
    }
    refreshAllKeys();
}

KeyItemGridView::~KeyItemGridView() = default;

void KeyItemGridView::connectController()
{
    connect(m_controller, &KeyGridController::keySelected, this, &KeyItemGridView::selectAndAnnounce);
    connect(m_controller, &KeyGridController::keyChanged, this, &KeyItemGridView::announceIfSelected);
    connect(m_controller, &KeyGridController::closeFunctionDescription, this,
            &KeyItemGridView::closeFunctionDescription);
    // A selection on the page left behind means nothing on the new one.
    connect(m_controller, &KeyGridController::pageLeaving, this, [this] { cancelSelectedKeyButton(false); });
}

void KeyItemGridView::connectMenu()
{
    const struct
    {
        KeyGridContextMenu::Entry entry;
        void (KeyItemGridView::*slot)(bool);
    } handlers[] = {
        {KeyGridContextMenu::NewFolder, &KeyItemGridView::onContextMenuTrigger_CreateFolder},
        {KeyGridContextMenu::CreateHotkey, &KeyItemGridView::onContextMenuTrigger_CreateHotkey},
        {KeyGridContextMenu::CreateMacro, &KeyItemGridView::onContextMenuTrigger_CreateMacrokey},
        {KeyGridContextMenu::CreateLaunch, &KeyItemGridView::onContextMenuTrigger_CreateLaunch},
        {KeyGridContextMenu::CreateWebsite, &KeyItemGridView::onContextMenuTrigger_CreateWebsite},
        {KeyGridContextMenu::CreateTextString, &KeyItemGridView::onContextMenuTrigger_CreateTextString},
        {KeyGridContextMenu::Cut, &KeyItemGridView::onContextMenuTrigger_Cut},
        {KeyGridContextMenu::Copy, &KeyItemGridView::onContextMenuTrigger_Copy},
        {KeyGridContextMenu::Delete, &KeyItemGridView::onContextMenuTrigger_Del},
        {KeyGridContextMenu::Paste, &KeyItemGridView::onContextMenuTrigger_Paste},
        {KeyGridContextMenu::SaveAsFavorite, &KeyItemGridView::onContextMenuTrigger_Favorite},
    };
    for (const auto& handler : handlers)
        connect(m_menu->action(handler.entry), &QAction::triggered, this, handler.slot);
}

// ---- access ----

void KeyItemGridView::setFavoriteInserter(std::function<bool(const KeyItem*)> inserter)
{
    m_controller->setFavoriteInserter(std::move(inserter));
}

int KeyItemGridView::selectedKeyIdx() const
{
    return m_selectedIdx;
}

int KeyItemGridView::hoveredKeyIdx() const
{
    return m_hoveredIdx;
}

int KeyItemGridView::dragHoverKeyIdx() const
{
    return m_dragHoverIdx;
}

int KeyItemGridView::dragSourceKeyIdx() const
{
    return m_dragSourceIdx;
}

int KeyItemGridView::keyButtonCount() const
{
    return m_buttons.size();
}

QLabel* KeyItemGridView::keyButton(int idx) const
{
    return idx >= 0 && idx < m_buttons.size() ? m_buttons.at(idx) : nullptr;
}

const KeyItem* KeyItemGridView::clipboardItem() const
{
    return m_controller->clipboardItem();
}

KeyGridContextMenu* KeyItemGridView::contextMenu() const
{
    return m_menu;
}

QSize KeyItemGridView::gridShape(int layout)
{
    return KeyGridGeometry::gridShape(layout);
}

KeyItemModel* KeyItemGridView::model() const
{
    return COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
}

ButtonLayoutConfig* KeyItemGridView::layouts() const
{
    return COMPONENT(ButtonLayoutConfig, ComponentId::ButtonLayoutConfig);
}

int KeyItemGridView::keyIdxAt(const QPoint& pos) const
{
    for (int idx = 0; idx < m_buttons.size(); ++idx) {
        if (m_buttons.at(idx)->geometry().translated(m_container->pos()).contains(pos))
            return idx;
    }
    return -1;
}

// ---- buttons and faces ----

void KeyItemGridView::changeLayoutButtonView(KeyLayout keyLayout)
{
    if (!ButtonLayoutConfig::isValidLayout(keyLayout)) {
        LOG_MSG(QStringLiteral("ERROR: Invalid layout."));
        return;
    }
    deleteKeyButtons();
    createKeyButtons(keyLayout);
    resizeMainWindow();
    refreshAllKeys();
}

void KeyItemGridView::deleteKeyButtons()
{
    m_dragHoverTimer->stop();
    m_selectedIdx = m_hoveredIdx = m_dragHoverIdx = m_dragSourceIdx = -1;
    qDeleteAll(m_buttons);
    m_buttons.clear();
    m_controller->setKeyCount(0);
}

void KeyItemGridView::createKeyButtons(int layout)
{
    m_layout = layout;
    const QSize panel = ButtonLayoutConfig::panelSize(layout);
    setFixedSize(panel);
    m_container->setGeometry(QRect(QPoint(), panel));
    for (const QRect& rect : KeyGridGeometry::keyRects(layout)) {
        auto* button = new QLabel(m_container);
        // Listed first: showing it may already ask for its accessible state.
        m_buttons.append(button);
        button->setObjectName(QStringLiteral("KeyButton"));
        button->setAlignment(Qt::AlignCenter);
        button->setGeometry(rect);
        button->setFixedSize(rect.size());
        button->show();
        setKeyState(m_buttons.size() - 1, StateNone);
    }
    updateFocusLook();
    m_controller->setKeyCount(m_buttons.size());
}

void KeyItemGridView::resizeMainWindow()
{
    QWidget* top = window();
    if (top == this)
        return;
    const bool visible = top->isVisible();
    if (visible)
        top->hide();
    top->setFixedWidth(width() + MainWindowExtraWidth);
    if (visible)
        top->show();
}

void KeyItemGridView::onLayoutChanging(bool changing)
{
    m_layoutChanging = changing;
    if (!changing)
        refreshAllKeys();
}

void KeyItemGridView::resetAllButtonToDef()
{
    m_selectedIdx = m_hoveredIdx = -1;
    for (int idx = 0; idx < m_buttons.size(); ++idx) {
        showKey(idx, nullptr, false);
        setKeyState(idx, StateNone);
    }
}

void KeyItemGridView::setButtonIcon(int buttonIdx, QPixmap& icon, bool selected)
{
    QLabel* button = keyButton(buttonIdx);
    if (!logMsgWhenRetFail(button != nullptr, QStringLiteral("button idx out of range: %1!!").arg(buttonIdx)))
        return;
    button->setPixmap(composeKeyIcon(icon, ButtonLayoutConfig::iconSize(m_layout), selected));
}

QPixmap KeyItemGridView::composeKeyIcon(const QPixmap& icon, const QSize& size, bool selected)
{
    QPixmap composed = KeyButtonImage::compose(icon, size);
    QPainter painter(&composed);
    if (selected) {
        // Inside the key's own square: the grid spacing stays the same and
        // the face's black margin takes the frame.
        QPen pen(QColor::fromRgba(SelectionFrameColor), SelectionFrameWidth);
        pen.setJoinStyle(Qt::MiterJoin);
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        const qreal inset = SelectionFrameWidth / 2.0;
        painter.drawRect(QRectF(composed.rect()).adjusted(inset, inset, -inset, -inset));
    }
    painter.end();
    return composed;
}

void KeyItemGridView::showKey(int idx, const KeyItem* item, bool framed)
{
    // Faces are drawn as images (thread-safe); pixmaps only here.
    QPixmap face = QPixmap::fromImage(item ? KeyFaceRenderer::render(item) : KeyFaceRenderer::blankFace());
    setButtonIcon(idx, face, framed);
    // Qt tells assistive technology of every new name, so only a changed one is set.
    const QString name = keyAccessibleName(idx, item);
    if (m_buttons.at(idx)->accessibleName() != name)
        m_buttons.at(idx)->setAccessibleName(name);
}

void KeyItemGridView::redrawKey(int idx, bool framed)
{
    if (!keyButton(idx))
        return;
    KeyItemModel* keyModel = model();
    showKey(idx, keyModel ? keyModel->keyItemAt(idx) : nullptr, framed);
}

void KeyItemGridView::setKeyState(int idx, const char* state)
{
    QLabel* button = keyButton(idx);
    if (!button)
        return;
    WidgetLook::setStyleProperty(button, StateProperty, QString::fromLatin1(state));
}

const char* KeyItemGridView::restingState(int idx) const
{
    if (idx == m_selectedIdx)
        return StateSelected;
    return idx == m_hoveredIdx ? StateHovered : StateNone;
}

void KeyItemGridView::refreshAllKeys()
{
    if (m_layoutChanging || m_buttons.isEmpty())
        return;
    KeyItemModel* keyModel = model();
    if (!keyModel)
        return;
    const QList<KeyItem*>* list = keyModel->getCurrentLayoutListHead();
    if (!logMsgWhenRetFail(list != nullptr, QStringLiteral("got null key item list!!")))
        return;
    QVector<const KeyItem*> byKey(m_buttons.size(), nullptr);
    for (const KeyItem* item : *list) {
        if (!item)
            LOG_MSG(QStringLiteral("keyItem is nullptr!!"));
        else if (item->keyIdx >= 0 && item->keyIdx < byKey.size())
            byKey[item->keyIdx] = item;
    }
    for (int idx = 0; idx < m_buttons.size(); ++idx) {
        showKey(idx, byKey.at(idx), idx == m_selectedIdx || idx == m_hoveredIdx);
        setKeyState(idx, restingState(idx));
    }
}

void KeyItemGridView::onUpdateContent(const KeyItem* item)
{
    // The model's notice for a whole page.
    if (!item) {
        refreshAllKeys();
        return;
    }
    if (m_layoutChanging)
        return;
    if (item->keyIdx >= m_buttons.size()) {
        LOG_MSG(QStringLiteral("key idx >= current layout max key!"));
        return;
    }
    KeyItemModel* keyModel = model();
    const QList<KeyItem*>* list = keyModel ? keyModel->getCurrentLayoutListHead() : nullptr;
    // An item of a page not shown has no button.
    if (item->keyIdx < 0 || !list || !list->contains(const_cast<KeyItem*>(item)))
        return;
    showKey(item->keyIdx, item, item->keyIdx == m_selectedIdx || item->keyIdx == m_hoveredIdx);
    setKeyState(item->keyIdx, restingState(item->keyIdx));
}

// ---- selection and hover ----

void KeyItemGridView::cancelSelectedKeyButton(bool showFunctionDescription)
{
    if (m_selectedIdx >= 0) {
        const int previous = m_selectedIdx;
        m_selectedIdx = -1;
        redrawKey(previous, previous == m_hoveredIdx);
        setKeyState(previous, restingState(previous));
        AccessibleButton::announceSelection(keyButton(previous));
        updateFocusLook();
    }
    if (showFunctionDescription)
        emit buttonIdxChanged(-1);
}

void KeyItemGridView::cancelPreviousAndThenSelectKeyButton(int idx)
{
    cancelSelectedKeyButton(false);
    if (!keyButton(idx))
        return;
    m_selectedIdx = idx;
    redrawKey(idx, true);
    setKeyState(idx, StateSelected);
    AccessibleButton::announceSelection(keyButton(idx));
    updateFocusLook();
    if (hasFocus())
        AccessibleButton::announceFocus(keyButton(idx));
}

void KeyItemGridView::cancelHoveredKeyButton()
{
    if (m_hoveredIdx >= 0 && m_hoveredIdx != m_selectedIdx) {
        const int previous = m_hoveredIdx;
        m_hoveredIdx = -1;
        redrawKey(previous, false);
        setKeyState(previous, StateNone);
    }
    m_hoveredIdx = -1;
}

void KeyItemGridView::cancelPreviousAndThenHoverKeyButton(int hoveringIdx)
{
    cancelHoveredKeyButton();
    if (hoveringIdx == m_selectedIdx)
        return;
    m_hoveredIdx = hoveringIdx;
    if (hoveringIdx >= 0) {
        redrawKey(hoveringIdx, true);
        setKeyState(hoveringIdx, StateHovered);
    }
}

void KeyItemGridView::selectAndAnnounce(int idx)
{
    cancelPreviousAndThenSelectKeyButton(idx);
    setFocus();
    emit buttonIdxChanged(idx);
}

void KeyItemGridView::announceIfSelected(int idx)
{
    // The property form must not go on showing an item that changed type
    // or went away.
    if (idx >= 0 && idx == m_selectedIdx)
        emit buttonIdxChanged(idx);
}

// ---- mouse and keyboard ----

bool KeyItemGridView::event(QEvent* event)
{
    if (event->type() == QEvent::HoverMove) {
        const int idx = keyIdxAt(static_cast<QHoverEvent*>(event)->pos());
        if (idx != m_hoveredIdx) {
            if (idx >= 0)
                cancelPreviousAndThenHoverKeyButton(idx);
            else
                cancelHoveredKeyButton();
        }
    } else if (event->type() == QEvent::HoverLeave) {
        cancelHoveredKeyButton();
    }
    return QWidget::event(event);
}

void KeyItemGridView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_pressPos = event->pos();
        m_pressed = true;
        setFocusVisible(false);
        setFocus(Qt::MouseFocusReason);
    }
    event->accept();
}

void KeyItemGridView::mouseReleaseEvent(QMouseEvent* event)
{
    const bool left = event->button() == Qt::LeftButton;
    const bool right = event->button() == Qt::RightButton;
    m_pressed = false;
    if (!left && !right)
        return;
    controller_mousePress(event->pos(), right);
    if (right)
        showContextMenu(event->pos());
    event->accept();
}

void KeyItemGridView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_pressed || !(event->buttons() & Qt::LeftButton))
        return;
    if ((event->pos() - m_pressPos).manhattanLength() < DragStartDistance)
        return;
    m_pressed = false;
    const int idx = keyIdxAt(m_pressPos);
    if (m_controller->canDrag(idx))
        startDrag(idx, m_pressPos);
}

void KeyItemGridView::controller_mousePress(const QPoint& pos, bool rightButton)
{
    const int idx = keyIdxAt(pos);
    if (idx < 0)
        return;
    if (idx != m_selectedIdx) {
        selectAndAnnounce(idx);
        return;
    }
    KeyItemModel* keyModel = model();
    KeyItem* item = keyModel ? keyModel->keyItemAt(idx) : nullptr;
    if (KeyGridController::opensPage(item)) {
        if (!rightButton)
            m_controller->openPageOf(item);
        return;
    }
    cancelPreviousAndThenSelectKeyButton(idx);
    setFocus();
}

void KeyItemGridView::keyPressEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) {
        event->accept();
        return;
    }
    const Qt::KeyboardModifiers modifiers =
        event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool deleteKey = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
    if (deleteKey && modifiers == Qt::NoModifier) {
        controller_delEvent(m_selectedIdx, false);
        event->accept();
        return;
    }
    if (modifiers == Qt::ControlModifier && m_selectedIdx >= 0 && triggerShortcut(event->key())) {
        event->accept();
        return;
    }
    if (navigate(event)) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool KeyItemGridView::navigate(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const int key = event->key();
    const bool menuKey = key == Qt::Key_Menu || (key == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
    if (!menuKey && modifiers != Qt::NoModifier)
        return false;
    setFocusVisible(true);
    switch (key) {
    case Qt::Key_Left:
        moveSelection(-1, 0);
        return true;
    case Qt::Key_Right:
        moveSelection(1, 0);
        return true;
    case Qt::Key_Up:
        moveSelection(0, -1);
        return true;
    case Qt::Key_Down:
        moveSelection(0, 1);
        return true;
    case Qt::Key_Home:
        moveSelectionTo(0);
        return true;
    case Qt::Key_End:
        moveSelectionTo(m_buttons.size() - 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        openOrEnterForm();
        return true;
    default:
        break;
    }
    if (!menuKey)
        return false;
    if (QLabel* button = keyButton(m_selectedIdx))
        showContextMenu(button->geometry().translated(m_container->pos()).center());
    return true;
}

void KeyItemGridView::moveSelection(int dx, int dy)
{
    // Without a selection the first key is where the keyboard starts.
    moveSelectionTo(m_selectedIdx < 0 ? 0 : KeyGridGeometry::step(m_layout, m_selectedIdx, dx, dy));
}

void KeyItemGridView::moveSelectionTo(int idx)
{
    if (keyButton(idx) && idx != m_selectedIdx)
        selectAndAnnounce(idx);
}

// What a second click does on a folder or back key, Enter does from the
// keyboard; any other key has its settings in the form.
void KeyItemGridView::openOrEnterForm()
{
    if (m_selectedIdx < 0)
        return;
    KeyItemModel* keyModel = model();
    KeyItem* item = keyModel ? keyModel->keyItemAt(m_selectedIdx) : nullptr;
    if (KeyGridController::opensPage(item))
        m_controller->openPageOf(item);
    else
        emit formFocusWanted();
}

void KeyItemGridView::focusInEvent(QFocusEvent* event)
{
    // Focus that arrives while no mouse button is down came from the keyboard
    // (Tab, Enter in the palette or the tree); a window or menu coming back
    // leaves the frame as it was.
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::MouseFocusReason)
        setFocusVisible(false);
    else if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        setFocusVisible(QGuiApplication::mouseButtons() == Qt::NoButton);
    updateFocusLook();
    // After Qt has announced the grid itself: the key is what has the focus.
    QMetaObject::invokeMethod(this, &KeyItemGridView::announceKeyboardFocus, Qt::QueuedConnection);
    QWidget::focusInEvent(event);
}

void KeyItemGridView::focusOutEvent(QFocusEvent* event)
{
    updateFocusLook();
    QWidget::focusOutEvent(event);
}

void KeyItemGridView::setFocusVisible(bool visible)
{
    if (m_focusVisible == visible)
        return;
    m_focusVisible = visible;
    updateFocusLook();
}

void KeyItemGridView::updateFocusLook()
{
    const bool shown = m_focusVisible && hasFocus();
    WidgetLook::setStyleProperty(this, KeyboardFocusProperty, shown && !keyButton(m_selectedIdx));
    for (int idx = 0; idx < m_buttons.size(); ++idx)
        WidgetLook::setStyleProperty(m_buttons.at(idx), KeyboardFocusProperty, shown && idx == m_selectedIdx);
}

void KeyItemGridView::announceKeyboardFocus()
{
    if (hasFocus())
        AccessibleButton::announceFocus(keyButton(m_selectedIdx));
}

// ---- accessibility ----

QString KeyItemGridView::keyAccessibleName(int idx, const KeyItem* item)
{
    const int number = idx + 1;
    if (!item || item->actionType == KAT_INVALID) {
        //: %1 is the number of a key on the keypad.
        return tr("Key %1: empty").arg(number);
    }
    //: The key that leads out of a folder page, back to the page above.
    const QString type =
        KeyGridController::isLinkType(item->actionType) ? tr("Back") : ActionList::actionName(item->actionType);
    // A title may run over lines on the key; read out, it is one line.
    const QString title = item->currentRender().text.simplified();
    if (title.isEmpty())
        return tr("Key %1: %2").arg(number).arg(type);
    return tr("Key %1: %2, %3").arg(number).arg(title, type);
}

int KeyItemGridView::buttonIndexOf(const QWidget* widget) const
{
    for (int idx = 0; idx < m_buttons.size(); ++idx) {
        if (m_buttons.at(idx) == widget)
            return idx;
    }
    return -1;
}

QWidget* KeyItemGridView::buttonWidget(int idx) const
{
    return keyButton(idx);
}

bool KeyItemGridView::isButtonSelected(int idx) const
{
    return idx >= 0 && idx == m_selectedIdx;
}

int KeyItemGridView::keyboardButton() const
{
    return m_selectedIdx;
}

void KeyItemGridView::pressButton(int idx)
{
    if (keyButton(idx))
        selectAndAnnounce(idx);
}

bool KeyItemGridView::dropActionOnSelectedKey(int actionType)
{
    if (m_selectedIdx < 0)
        return false;
    setFocusVisible(true);
    emit closeFunctionDescription();
    controller_dropKeyItemFromActionList(actionType, m_selectedIdx);
    return true;
}

bool KeyItemGridView::triggerShortcut(int qtKey)
{
    const KeyGridContextMenu::Entry entry = KeyGridContextMenu::entryForShortcut(qtKey);
    if (entry == KeyGridContextMenu::EntryCount)
        return false;
    // The same rules as the menu: what it would not offer, the keys do not do.
    if (updateContextMenuActions(m_selectedIdx) && m_menu->isShown(entry))
        m_menu->action(entry)->trigger();
    return true;
}

// ---- drag and drop ----

void KeyItemGridView::startDrag(int idx, const QPoint& pressPos)
{
    KeyItemModel* keyModel = model();
    const KeyItem* item = keyModel ? keyModel->keyItemAt(idx) : nullptr;
    if (!item)
        return;
    emit dragItem();
    m_dragSourceIdx = idx;
    auto* drag = new QDrag(this);
    drag->setMimeData(DragPayload::itemMimeData(DragPayload::GridItemFormat, item));
    const int bezel = KeyGridGeometry::Bezel;
    const QRect faceRect =
        m_buttons.at(idx)->geometry().translated(m_container->pos()).adjusted(bezel, bezel, -bezel, -bezel);
    drag->setPixmap(QPixmap::fromImage(KeyFaceRenderer::render(item))
                        .scaled(faceRect.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    drag->setHotSpot(pressPos - faceRect.topLeft());
    drag->exec(Qt::MoveAction);
    drag->deleteLater();
    // The drag held the pointer: no hover event told us where it went.
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    cancelPreviousAndThenHoverKeyButton(rect().contains(pointer) ? keyIdxAt(pointer) : -1);
    clearDragState();
}

void KeyItemGridView::clearDragState()
{
    m_dragHoverTimer->stop();
    m_dragHoverIdx = -1;
    m_dragSourceIdx = -1;
}

void KeyItemGridView::dragEnterEvent(QDragEnterEvent* event)
{
    const DragPayload::Content content = DragPayload::read(event->mimeData(), event->source() != nullptr);
    m_dragIsImageFile =
        content.kind == DragPayload::None && !KeyGridController::droppedImageFile(event->mimeData()).isEmpty();
    if (m_dragIsImageFile) {
        // Copy: a file manager must never take a move as leave to delete the file.
        event->setDropAction(Qt::CopyAction);
        event->accept();
        setFocus();
        return;
    }
    if (content.kind == DragPayload::None) {
        event->ignore();
        return;
    }
    // A folder may not end up inside a folder, so hovering with one never
    // makes or opens a folder.
    m_dragIsFolder = content.actionType == KAT_FOLDER;
    KeyItemModel* keyModel = model();
    const bool onThisPage =
        content.kind == DragPayload::GridItem && keyModel && keyModel->keyItemAt(content.item->keyIdx) == content.item;
    m_dragSourceIdx = onThisPage ? content.item->keyIdx : -1;
    event->setDropAction(Qt::MoveAction);
    event->accept();
    emit closeFunctionDescription();
    setFocus();
    setFocusVisible(false);
}

void KeyItemGridView::dragMoveEvent(QDragMoveEvent* event)
{
    m_dragPos = event->pos();
    const int idx = keyIdxAt(m_dragPos);
    if (idx < 0)
        cancelSelectedKeyButton(false);
    else if (idx != m_selectedIdx)
        cancelPreviousAndThenSelectKeyButton(idx);
    if (m_dragIsImageFile) {
        // An icon is dropped onto a key as it is; hovering opens no folder.
        event->setDropAction(Qt::CopyAction);
        event->accept();
        return;
    }
    if (idx != m_dragHoverIdx) {
        m_dragHoverIdx = idx;
        if (idx >= 0)
            m_dragHoverTimer->start();
        else
            m_dragHoverTimer->stop();
    }
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void KeyItemGridView::dragLeaveEvent(QDragLeaveEvent* event)
{
    // Leaving the grid must not open the key that was last under the cursor.
    m_dragHoverTimer->stop();
    m_dragHoverIdx = -1;
    event->accept();
}

void KeyItemGridView::dropEvent(QDropEvent* event)
{
    clearDragState();
    const int idx = keyIdxAt(event->pos());
    const QString imageFile = m_dragIsImageFile ? KeyGridController::droppedImageFile(event->mimeData()) : QString();
    m_dragIsImageFile = false;
    if (!imageFile.isEmpty()) {
        m_controller->setIconFromFile(idx, imageFile);
        event->setDropAction(Qt::CopyAction);
        event->accept();
        return;
    }
    const DragPayload::Content content =
        idx < 0 ? DragPayload::Content() : DragPayload::read(event->mimeData(), event->source() != nullptr);
    if (content.kind == DragPayload::None) {
        event->ignore();
        return;
    }
    emit closeFunctionDescription();
    if (content.kind == DragPayload::ActionType)
        controller_dropKeyItemFromActionList(content.actionType, idx);
    else if (content.kind == DragPayload::GridItem && content.item->ownerList)
        controller_dropKeyItemFromKeyItemGridView(content.item, idx);
    else if (content.kind == DragPayload::GridItem)
        LOG_MSG(QStringLiteral("ERROR: dragged key was deleted meanwhile!!"));
    else
        controller_dropKeyItemFromFavoriteGridView(content.item, idx);
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void KeyItemGridView::onTimerTimeout()
{
    m_dragHoverTimer->stop();
    const int idx = keyIdxAt(m_dragPos);
    // Only the key the drag rests on reacts, and never the dragged key itself.
    const bool resting = idx >= 0 && idx != m_dragSourceIdx && idx == m_dragHoverIdx;
    if (m_controller->openOnDragHover(resting ? idx : -1, m_dragIsFolder)) {
        m_dragHoverIdx = -1;
        m_dragSourceIdx = -1;
    }
}

// ---- edits: the controller's ----

void KeyItemGridView::controller_dropKeyItemFromActionList(int actionType, int idx)
{
    m_controller->controller_dropKeyItemFromActionList(actionType, idx);
}

void KeyItemGridView::controller_dropKeyItemFromKeyItemGridView(KeyItem* item, int idx)
{
    m_controller->controller_dropKeyItemFromKeyItemGridView(item, idx);
}

void KeyItemGridView::controller_dropKeyItemFromFavoriteGridView(const KeyItem* item, int idx)
{
    m_controller->controller_dropKeyItemFromFavoriteGridView(item, idx);
}

void KeyItemGridView::controller_copyEvent(int idx)
{
    m_controller->controller_copyEvent(idx);
}

void KeyItemGridView::controller_pasteEvent(int idx)
{
    m_controller->controller_pasteEvent(idx);
}

void KeyItemGridView::controller_delEvent(int idx, bool ignoreConfirmationBox)
{
    m_controller->controller_delEvent(idx, ignoreConfirmationBox);
}

bool KeyItemGridView::handleKB_DelConfirmMsgBox()
{
    return m_controller->handleKB_DelConfirmMsgBox();
}

void KeyItemGridView::createNewAction(int actionType, int idx)
{
    m_controller->createNewAction(actionType, idx);
}

// ---- context menu ----

bool KeyItemGridView::updateContextMenuActions(int idx)
{
    m_menu->setKeyIdx(idx);
    const KeyGridController::KeyContext context = m_controller->contextOf(idx);
    if (!context.valid)
        return false;
    KeyGridContextMenu::Situation situation;
    situation.emptyKey = context.emptyKey;
    situation.folderKey = context.folderKey;
    situation.topLevel = context.topLevel;
    situation.clipboardHoldsItem = context.clipboardHoldsItem;
    m_menu->showEntriesFor(situation);
    return true;
}

void KeyItemGridView::showContextMenu(const QPoint& pos)
{
    if (updateContextMenuActions(keyIdxAt(pos)))
        m_menu->popup(mapToGlobal(pos));
}

int KeyItemGridView::menuKeyIdx() const
{
    return m_menu->keyIdx();
}

void KeyItemGridView::onTreeItemChanged(const KeyItem* item)
{
    if (!logMsgWhenRetFail(item != nullptr, QStringLiteral("keyItem is nullptr!!")))
        return;
    if (!model())
        return;
    m_controller->followTreeItem(item);
    if (item->isFolder())
        cancelSelectedKeyButton(false);
    else
        selectAndAnnounce(item->keyIdx);
}

void KeyItemGridView::onContextMenuTrigger_Cut(bool)
{
    const int idx = menuKeyIdx();
    if (idx >= 0)
        m_controller->cut(idx);
}

void KeyItemGridView::onContextMenuTrigger_Copy(bool)
{
    const int idx = menuKeyIdx();
    if (idx >= 0)
        controller_copyEvent(idx);
}

void KeyItemGridView::onContextMenuTrigger_Paste(bool)
{
    const int idx = menuKeyIdx();
    if (idx >= 0)
        controller_pasteEvent(idx);
}

void KeyItemGridView::onContextMenuTrigger_Del(bool)
{
    const int idx = menuKeyIdx();
    if (idx >= 0)
        controller_delEvent(idx, false);
}

void KeyItemGridView::onContextMenuTrigger_Rest(bool)
{
    m_controller->resetKey(menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_Favorite(bool)
{
    m_controller->saveAsFavorite(menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_CreateFolder(bool)
{
    createNewAction(KAT_FOLDER, menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_CreateHotkey(bool)
{
    createNewAction(KAT_HOTKEY, menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_CreateMacrokey(bool)
{
    createNewAction(KAT_MACROKEY, menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_CreateLaunch(bool)
{
    createNewAction(KAT_EXE_APP_FILE, menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_CreateWebsite(bool)
{
    createNewAction(KAT_OPEN_WEBSITE, menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_CreateTextString(bool)
{
    createNewAction(KAT_PASTE_STRING, menuKeyIdx());
}

void KeyItemGridView::onContextMenuTrigger_MoveToFolder(bool)
{
    m_controller->moveToFolder(menuKeyIdx());
}
