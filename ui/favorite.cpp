#include "favorite.h"

#include "clicklabel.h"
#include "dragpayload.h"
#include "favoritekeyitemmodel.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemsummary.h"
#include "logging.h"
#include "objectregistry.h"
#include "settings.h"
#include "settingskeys.h"
#include "titlebar.h"
#include "userquestion.h"
#include "widgetlook.h"

#include <QContextMenuEvent>
#include <QDrag>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int MaxItems = FavoriteKeyItemModel::MaxItems;
constexpr int FrameBorder = 1;
constexpr int BodyMargin = 12;

constexpr char StateProperty[] = "state";
constexpr char FilledProperty[] = "filled";
constexpr char KeyIdxProperty[] = "keyIdx";

const char* const UsageStyle = "color: rgb(242,242,242);";
const char* const UsageFullStyle = "color: rgb(255,0,0);";

int padHeight(int rows)
{
    return rows * Favorite::SlotSide + (rows - 1) * Favorite::SlotSpacing;
}

// Only configured actions become favourites: never an empty key or a back key.
bool mayBecomeFavorite(const KeyItem* item)
{
    return item && item->actionType >= KAT_FOLDER && item->actionType <= KAT_PASTE_STRING;
}

} // namespace

Favorite::Favorite(FavoriteKeyItemModel* model, QWidget* mainWindow)
    : QWidget(mainWindow, Qt::Tool | Qt::FramelessWindowHint), m_model(model), m_mainWindow(mainWindow)
{
    setObjectName(QStringLiteral("Favorite"));
    setWindowTitle(tr("My Favorite"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAcceptDrops(true);
    buildWindow();
    setupTitleBar();
    if (m_model)
        connect(m_model, &FavoriteKeyItemModel::updateContent, this, &Favorite::updatefavoriteGridView);
    else
        LOG_MSG(QStringLiteral("ERROR: My Favorite has no favorites model!!"));
    updatefavoriteGridView();
}

Favorite::~Favorite() = default;

void Favorite::buildWindow()
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("FavoriteFrame"));
    frame->setAttribute(Qt::WA_StyledBackground);
    outer->addWidget(frame);

    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->setContentsMargins(FrameBorder, FrameBorder, FrameBorder, FrameBorder);
    frameLayout->setSpacing(0);
    m_titleBar = new TitleBar(TitleBar::CloseButton, frame);
    frameLayout->addWidget(m_titleBar);

    auto* body = new QVBoxLayout;
    body->setContentsMargins(BodyMargin, BodyMargin, BodyMargin, BodyMargin);
    body->setSpacing(10);
    m_pad = new QScrollArea(frame);
    m_pad->setObjectName(QStringLiteral("FavoritePad"));
    m_pad->setFrameShape(QFrame::NoFrame);
    m_pad->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pad->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_pad->setFocusPolicy(Qt::NoFocus);
    m_pad->setFixedHeight(padHeight(MinRows));
    m_padContent = new QWidget;
    m_padContent->setObjectName(QStringLiteral("FavoritePadContent"));
    m_grid = new QGridLayout(m_padContent);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(SlotSpacing);
    m_pad->setWidget(m_padContent);
    body->addWidget(m_pad, 0, Qt::AlignLeft);

    auto* footer = new QHBoxLayout;
    footer->setContentsMargins(0, 0, 0, 0);
    m_usage = new QLabel(frame);
    m_usage->setObjectName(QStringLiteral("FavoriteUsage"));
    footer->addWidget(m_usage, 1);
    m_reset = new QPushButton(tr("Reset"), frame);
    m_reset->setObjectName(QStringLiteral("FavoriteResetButton"));
    m_reset->setAutoDefault(false);
    connect(m_reset, &QPushButton::clicked, this, &Favorite::onResetAllBtnClicked);
    footer->addWidget(m_reset);
    body->addLayout(footer);
    frameLayout->addLayout(body);

    // Wide enough for the pad with its scroll bar, so the window keeps its
    // size while the pad grows.
    const int width = WidePadWidth + 2 * (BodyMargin + FrameBorder);
    setFixedSize(width, outer->sizeHint().height());
}

void Favorite::setupTitleBar()
{
    m_titleBar->setTitle(tr("My Favorite"));
    ClickLabel* close = m_titleBar->button(TitleBar::CloseButton);
    close->setAccessibleName(close->toolTip());
    connect(close, &ClickLabel::mouseEnterLeaveEvent, this, &Favorite::onTitleBarButtonMouseEvent);
    connect(close, &ClickLabel::mouseClicked, this, &QWidget::hide);
    if (QObject* mainWindow = ObjectRegistry::find(ComponentId::MainWindow))
        connect(mainWindow, SIGNAL(appStateChange(bool)), this, SLOT(onAppStateChange(bool)));
}

// ---- geometry of the pad ----

int Favorite::rowCount(int itemCount)
{
    const int needed = qMax(itemCount, 0) + 1;
    if (needed <= MinRows * Columns)
        return MinRows;
    return qMin((needed + Columns - 1) / Columns, MaxRows);
}

int Favorite::padWidth(int rows)
{
    return rows > MinRows ? WidePadWidth : NarrowPadWidth;
}

int Favorite::isPosInButtonPad(const QPoint& point) const
{
    // A slot scrolled out of sight is not under any point.
    const QRect viewport(m_pad->viewport()->mapTo(this, QPoint()), m_pad->viewport()->size());
    if (!viewport.contains(point))
        return -1;
    for (int idx = m_slots.size() - 1; idx >= 0; --idx) {
        const QToolButton* slot = m_slots.at(idx);
        if (QRect(slot->mapTo(this, QPoint()), slot->size()).contains(point))
            return idx < itemCount() ? idx : -1;
    }
    return -1;
}

// ---- access ----

int Favorite::slotCount() const
{
    return m_slots.size();
}

QToolButton* Favorite::slotButton(int idx) const
{
    return m_slots.value(idx, nullptr);
}

QScrollArea* Favorite::pad() const
{
    return m_pad;
}

QLabel* Favorite::usageLabel() const
{
    return m_usage;
}

QPushButton* Favorite::resetButton() const
{
    return m_reset;
}

TitleBar* Favorite::titleBar() const
{
    return m_titleBar;
}

QMenu* Favorite::contextMenu() const
{
    return m_menu;
}

int Favorite::itemCount() const
{
    return m_model ? m_model->count() : 0;
}

const KeyItem* Favorite::itemAt(int idx) const
{
    return m_model ? m_model->keyItems().value(idx, nullptr) : nullptr;
}

int Favorite::slotIndexOf(const QObject* object) const
{
    for (int idx = 0; idx < m_slots.size(); ++idx) {
        if (m_slots.at(idx) == object)
            return idx;
    }
    return -1;
}

// ---- the pad ----

void Favorite::updatefavoriteGridView()
{
    const int focused = slotIndexOf(focusWidget());
    // Slots go later: this may run from inside one of their own key or menu events.
    for (QToolButton* slot : qAsConst(m_slots)) {
        slot->hide();
        m_grid->removeWidget(slot);
        slot->deleteLater();
    }
    m_slots.clear();
    m_dropTargetShown = false;
    m_pressedSlot = -1;

    const int count = itemCount();
    const int rows = rowCount(count);
    for (int idx = 0; idx < rows * Columns; ++idx) {
        const KeyItem* item = itemAt(idx);
        auto* slot = new QToolButton(m_padContent);
        slot->setObjectName(QStringLiteral("FavoriteSlot"));
        slot->setFixedSize(SlotSide, SlotSide);
        slot->setIconSize(QSize(SlotSide, SlotSide));
        slot->setProperty(FilledProperty, item != nullptr);
        slot->setProperty(StateProperty, QString());
        slot->installEventFilter(this);
        if (item) {
            slot->setFocusPolicy(Qt::StrongFocus);
            slot->setToolTip(KeyItemSummary::toolTip(item));
            slot->setAccessibleName(KeyItemSummary::accessibleName(item));
            slot->setAccessibleDescription(KeyItemSummary::action(item));
            connect(slot, &QToolButton::clicked, this, [this, slot] {
                if (const KeyItem* chosen = itemAt(slotIndexOf(slot)))
                    emit favoriteActivated(chosen);
            });
        } else {
            slot->setFocusPolicy(Qt::NoFocus);
            slot->setAccessibleName(tr("Empty slot"));
        }
        m_grid->addWidget(slot, idx / Columns, idx % Columns);
        slot->show();
        m_slots.append(slot);
        drawSlot(idx);
    }
    m_padContent->setFixedSize(NarrowPadWidth, padHeight(rows));
    // The slots have their places now, not at the next layout pass: drops
    // and menus look them up by position.
    m_grid->activate();
    m_pad->setFixedWidth(padWidth(rows));

    m_usage->setText(tr("Usage: %1 / %2").arg(count).arg(MaxItems));
    m_usage->setStyleSheet(QLatin1String(count < MaxItems ? UsageStyle : UsageFullStyle));
    m_reset->setEnabled(count > 0);
    // Tab reaches the favourites in order, then Reset.
    for (int idx = 1; idx < count; ++idx)
        setTabOrder(m_slots.at(idx - 1), m_slots.at(idx));
    if (count > 0)
        setTabOrder(m_slots.at(count - 1), m_reset);
    if (focused >= 0 && count > 0)
        focusSlot(qMin(focused, count - 1));
}

// The face as the key grid composes it; the focused slot and the slot a
// drop would fill carry the grid's selection frame.
void Favorite::drawSlot(int idx)
{
    QToolButton* slot = slotButton(idx);
    if (!slot)
        return;
    const KeyItem* item = itemAt(idx);
    const bool framed = slot->hasFocus() || (m_dropTargetShown && idx == itemCount());
    if (!item && !framed) {
        slot->setIcon(QIcon());
        return;
    }
    const QPixmap face = item ? QPixmap::fromImage(KeyFaceRenderer::render(item)) : QPixmap();
    slot->setIcon(QIcon(KeyItemGridView::composeKeyIcon(face, QSize(SlotSide, SlotSide), framed)));
}

void Favorite::setDropTarget(bool shown)
{
    const int idx = itemCount();
    QToolButton* slot = slotButton(idx);
    if (!slot)
        return;
    m_dropTargetShown = shown;
    WidgetLook::setStyleProperty(slot, StateProperty, QLatin1String(shown ? "true" : "false"));
    drawSlot(idx);
}

void Favorite::moveScrollbarToBottom()
{
    QScrollBar* bar = m_pad->verticalScrollBar();
    bar->setValue(bar->maximum());
    // A pad that has just grown learns its new range once laid out.
    QTimer::singleShot(0, this, [this] {
        QScrollBar* laidOut = m_pad->verticalScrollBar();
        laidOut->setValue(laidOut->maximum());
    });
}

void Favorite::focusSlot(int idx)
{
    if (QToolButton* slot = slotButton(idx))
        slot->setFocus(Qt::OtherFocusReason);
}

// ---- adding and removing ----

bool Favorite::insertKeyItem(const KeyItem* keyItem)
{
    if (!m_model || m_model->count() >= MaxItems) {
        LOG_MSG(QStringLiteral("My Favorite is full or missing; item not kept"));
        return false;
    }
    if (!mayBecomeFavorite(keyItem)) {
        LOG_MSG(QStringLiteral("illegal action!"));
        return false;
    }
    // The model keeps a copy that belongs to no page and no key, and
    // announces it, which rebuilds the pad.
    return m_model->appendKeyItem(keyItem);
}

void Favorite::removeItem(int idx)
{
    if (m_model)
        m_model->removeKeyItem(idx);
}

void Favorite::onResetAllBtnClicked()
{
    if (!m_model)
        return;
    UserQuestion question;
    question.subject = tr("Are you sure you want to reset all favorite items?");
    question.text = tr("You can't undo this action.");
    question.buttons[UserQuestion::MidSlot] = UserQuestion::Cancel;
    question.buttons[UserQuestion::RightSlot] = UserQuestion::Reset;
    if (UserQuestions::ask(question).button != UserQuestion::Reset)
        return;
    m_model->removeAll();
    LOG_MSG(QStringLiteral("favorites reset"));
}

// ---- context menu ----

void Favorite::showContextMenu(int idx, const QPoint& globalPos)
{
    if (idx < 0 || idx >= itemCount())
        return;
    if (!m_menu) {
        m_menu = new QMenu(this);
        m_menu->setObjectName(QStringLiteral("FavoriteContextMenu"));
        m_deleteAction = m_menu->addAction(tr("&Delete"));
        connect(m_deleteAction, &QAction::triggered, this, &Favorite::onContextMenuTrigger_Del);
    }
    m_menu->setProperty(KeyIdxProperty, idx);
    m_menu->popup(globalPos);
}

void Favorite::onContextMenuTrigger_Del(bool)
{
    if (m_menu)
        removeItem(m_menu->property(KeyIdxProperty).toInt());
}

void Favorite::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const int idx = slotIndexOf(focusWidget());
        if (QToolButton* slot = idx < itemCount() ? slotButton(idx) : nullptr) {
            showContextMenu(idx, slot->mapToGlobal(slot->rect().center()));
            event->accept();
            return;
        }
    } else {
        const int idx = isPosInButtonPad(mapFromGlobal(event->globalPos()));
        if (idx >= 0) {
            showContextMenu(idx, event->globalPos());
            event->accept();
            return;
        }
    }
    event->ignore();
}

// ---- keyboard ----

void Favorite::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        hide();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool Favorite::handleSlotKey(int idx, QKeyEvent* event)
{
    const int count = itemCount();
    if (idx >= count)
        return false;
    const Qt::KeyboardModifiers modifiers =
        event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool menuKey =
        event->key() == Qt::Key_Menu || (event->key() == Qt::Key_F10 && modifiers == Qt::ShiftModifier);
    if (menuKey) {
        QToolButton* slot = slotButton(idx);
        showContextMenu(idx, slot->mapToGlobal(slot->rect().center()));
        return true;
    }
    if (modifiers != Qt::NoModifier)
        return false;
    int target = -1;
    switch (event->key()) {
    case Qt::Key_Delete:
        removeItem(idx);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        slotButton(idx)->click();
        return true;
    case Qt::Key_Left:
        target = idx - 1;
        break;
    case Qt::Key_Right:
        target = idx + 1;
        break;
    case Qt::Key_Up:
        target = idx - Columns;
        break;
    case Qt::Key_Down:
        target = idx + Columns;
        break;
    case Qt::Key_Home:
        target = 0;
        break;
    case Qt::Key_End:
        target = count - 1;
        break;
    default:
        return false;
    }
    if (target >= 0 && target < count)
        focusSlot(target);
    return true;
}

// ---- slots: mouse, focus and keys ----

bool Favorite::eventFilter(QObject* watched, QEvent* event)
{
    const int idx = slotIndexOf(watched);
    if (idx < 0)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton)
            return false;
        // A click only focuses: favourites go onto keys by dragging or by
        // the keyboard.
        m_pressedSlot = idx < itemCount() ? idx : -1;
        m_pressPos = mouse->pos();
        if (m_pressedSlot >= 0)
            m_slots.at(idx)->setFocus(Qt::MouseFocusReason);
        return true;
    }
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return false;
        m_pressedSlot = -1;
        return true;
    case QEvent::MouseMove: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        if (m_pressedSlot == idx && (mouse->buttons() & Qt::LeftButton) &&
            (mouse->pos() - m_pressPos).manhattanLength() >= DragStartDistance) {
            m_pressedSlot = -1;
            startDrag(idx, m_pressPos);
        }
        return true;
    }
    case QEvent::KeyPress:
        return handleSlotKey(idx, static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn:
        m_pad->ensureWidgetVisible(m_slots.at(idx), 0, 0);
        drawSlot(idx);
        return false;
    case QEvent::FocusOut:
        drawSlot(idx);
        return false;
    default:
        return false;
    }
}

// ---- drags ----

void Favorite::startDrag(int idx, const QPoint& pressPos)
{
    const KeyItem* item = itemAt(idx);
    if (!item)
        return;
    auto* drag = new QDrag(this);
    drag->setMimeData(DragPayload::itemMimeData(DragPayload::FavoriteItemFormat, item));
    drag->setPixmap(QPixmap::fromImage(KeyFaceRenderer::render(item)));
    drag->setHotSpot(pressPos);
    drag->exec(Qt::MoveAction);
    drag->deleteLater();
}

void Favorite::dragEnterEvent(QDragEnterEvent* event)
{
    if (itemCount() >= MaxItems || !event->mimeData()->hasFormat(QLatin1String(DragPayload::GridItemFormat))) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::MoveAction);
    event->accept();
    moveScrollbarToBottom();
    setDropTarget(true);
}

void Favorite::dragMoveEvent(QDragMoveEvent* event)
{
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

void Favorite::dragLeaveEvent(QDragLeaveEvent* event)
{
    if (itemCount() < MaxItems)
        setDropTarget(false);
    event->accept();
}

// A drop copies: the key keeps its item.
void Favorite::dropEvent(QDropEvent* event)
{
    if (itemCount() < MaxItems)
        setDropTarget(false);
    const DragPayload::Content content = DragPayload::read(event->mimeData(), event->source() != nullptr);
    // An item deleted meanwhile belongs to no page any more.
    const bool kept = content.kind == DragPayload::GridItem && content.item->ownerList &&
                      mayBecomeFavorite(content.item) && insertKeyItem(content.item);
    if (!kept) {
        LOG_MSG(QStringLiteral("drop not kept as a favorite"));
        event->ignore();
        return;
    }
    moveScrollbarToBottom();
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

// ---- the window ----

void Favorite::onTitleBarButtonMouseEvent(ClickLabel* pad, QEvent* e)
{
    TitleBar::updateButtonHover(pad, e);
}

void Favorite::onAppStateChange(bool isAppActive)
{
    m_titleBar->setActiveLook(isAppActive);
}

// Showing the window minimised and then normal is what brings it in front
// of other programs' windows.
void Favorite::bringWindowToFront()
{
    m_bringingToFront = true;
    showMinimized();
    m_bringingToFront = false;
    showNormal();
    raise();
    activateWindow();
}

void Favorite::moveEvent(QMoveEvent* event)
{
    QWidget::moveEvent(event);
    if (m_shownOnce && !m_bringingToFront && !isMinimized())
        saveWindowPosition();
}

void Favorite::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        restoreWindowPosition();
    m_shownOnce = true;
    emit visibilityChanged(true);
}

void Favorite::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // A moved window's place reaches the disk when the window goes away,
    // not on every step of the move.
    if (m_positionChanged) {
        m_positionChanged = false;
        if (auto* store = qobject_cast<Settings*>(ObjectRegistry::find(ComponentId::Settings)))
            store->save();
    }
    if (!event->spontaneous())
        emit visibilityChanged(false);
}

void Favorite::saveWindowPosition()
{
    auto* store = COMPONENT(Settings, ComponentId::Settings);
    if (!store)
        return;
    store->setValue(SettingsKeys::FavoriteWindowPos, saveGeometry());
    m_positionChanged = true;
}

void Favorite::restoreWindowPosition()
{
    auto* store = COMPONENT(Settings, ComponentId::Settings);
    const QByteArray saved = store ? store->value(SettingsKeys::FavoriteWindowPos).toByteArray() : QByteArray();
    if (!saved.isEmpty() && restoreGeometry(saved))
        return;
    if (!m_mainWindow)
        return;
    // Docked to the editor's right edge, tops aligned.
    const QRect editor = m_mainWindow->frameGeometry();
    move(editor.x() + editor.width() + 1, editor.y());
}
