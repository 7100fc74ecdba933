#include "mainwindow.h"

#include "actionlist.h"
#include "buttonlayoutconfig.h"
#include "clicklabel.h"
#include "dialog.h"
#include "favoritekeyitemmodel.h"
#include "foldercondition.h"
#include "formarea.h"
#include "functiondescription.h"
#include "hid_comm.h"
#include "ipc_thread.h"
#include "keyaction.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "keypadaccess.h"
#include "keypadmonitor.h"
#include "layoutmenu.h"
#include "logging.h"
#include "objectregistry.h"
#include "runtimeactionservices.h"
#include "settings.h"
#include "settingskeys.h"
#include "sleepmonitor.h"
#include "taskproxy.h"
#include "terminationsignals.h"
#include "titlebar.h"
#include "trayicon.h"
#include "treeview.h"
#include "updatedevicon.h"
#include "virtualkey.h"
#include "virtualkeypad.h"
#include "widgetlook.h"
#include "windowsystem.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QDebug>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QIcon>
#include <QLabel>
#include <QProcess>
#include <QSettings>
#include <QShowEvent>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

constexpr int FolderConditionIntervalMs = 600;

// The key panel of the default layout (15 keys, vertical) until the key grid
// sizes it for the layout in force.
const QSize DefaultKeyPanelSize(466, 523);

// The visible frame's border, drawn by the style sheet around the content.
constexpr int FrameBorder = 1;

} // namespace

MainWindow::MainWindow(QSettings* settings, bool runInBackground, QWidget* parent)
    : QWidget(parent), m_settings(settings)
{
    ObjectRegistry::registerMainWindow(this, &m_log);
    LOG_MSG(QStringLiteral("%1 %2 starting, log %3")
                .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(), m_log.filePath()));

    m_windowSystem = WindowSystem::create();
    LOG_MSG(QStringLiteral("window system: %1").arg(m_windowSystem->name()));
    // Read on the typing thread at each keystroke: the native window is made
    // again whenever its flags change.
    VirtualKey::setWindowSystem(m_windowSystem.get(), [this] { return quint64(internalWinId()); });
    connect(VirtualKey::instance(), &VirtualKey::keystrokesUnavailable, this,
            [this](const QString& fix) { tellUser(tr("Hotkeys and macros cannot type keys."), fix); });

    // Key faces are also drawn on the key action thread; the title font is
    // registered here first, before any thread draws text.
    KeyFaceRenderer::ensureFontsLoaded();
    buildWindow();
    createModel();
    buildEditor();
    createDevice();
    createRuntime();
    setupTray();
    setupVirtualKeypad();

    m_terminationSignals = new TerminationSignals(this);
    connect(m_terminationSignals, &TerminationSignals::terminationRequested, this, [this](int signalNumber) {
        LOG_MSG(QStringLiteral("termination signal %1 received").arg(signalNumber));
        quitApplication();
    });
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) { emit appStateChange(state == Qt::ApplicationActive); });
    connect(this, &MainWindow::appStateChange, m_titleBar, &TitleBar::setActiveLook);

    m_ipcThread = new IPC_Thread(this);

    if (runInBackground)
        QTimer::singleShot(0, this, [this] { hideToBackground(); });
}

MainWindow::~MainWindow()
{
    stopThreads();
    VirtualKey::setWindowSystem(nullptr, nullptr);
    m_keyItemModel->flushPendingSave();
    if (m_settings)
        m_settings->sync();
    UserQuestions::setHandler(nullptr);
    LOG_MSG(QStringLiteral("main window closed%1").arg(m_restartFlag ? QStringLiteral(", restarting") : QString()));
    ObjectRegistry::unregisterMainWindow();
    for (ComponentId id :
         {ComponentId::KeyItemModel, ComponentId::Settings, ComponentId::ButtonLayoutConfig, ComponentId::HidComm})
        ObjectRegistry::unregisterObject(id);
    if (m_restartFlag)
        startRestartedInstance();
}

void MainWindow::buildWindow()
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(QCoreApplication::applicationName());
    setWindowIcon(QIcon(QStringLiteral(":/image/icn_logo.png")));

    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* frame = new QWidget(this);
    frame->setObjectName(QStringLiteral("MainFrame"));
    frame->setAttribute(Qt::WA_StyledBackground);
    outer->addWidget(frame);

    auto* frameLayout = new QVBoxLayout(frame);
    frameLayout->setContentsMargins(FrameBorder, FrameBorder, FrameBorder, FrameBorder);
    frameLayout->setSpacing(0);

    m_titleBar = new TitleBar(TitleBar::AboutButton | TitleBar::MinimizeButton | TitleBar::CloseButton, frame);
    m_titleBar->setTitle(QCoreApplication::applicationName());
    connect(m_titleBar->button(TitleBar::AboutButton), &ClickLabel::mouseClicked, this, &MainWindow::showAboutBox);
    connect(m_titleBar->button(TitleBar::MinimizeButton), &ClickLabel::mouseClicked, this, &QWidget::showMinimized);
    connect(m_titleBar->button(TitleBar::CloseButton), &ClickLabel::mouseClicked, this, &QWidget::close);
    frameLayout->addWidget(m_titleBar);

    // Title bar over [key panel with the status line below it | right column].
    auto* content = new QHBoxLayout;
    content->setContentsMargins(0, 0, 0, 0);
    content->setSpacing(0);
    auto* left = new QVBoxLayout;
    left->setContentsMargins(0, 0, 0, 0);
    left->setSpacing(0);
    m_keyPanel = new QWidget(frame);
    m_keyPanel->setObjectName(QStringLiteral("KeyPanel"));
    m_keyPanel->setAttribute(Qt::WA_StyledBackground);
    left->addWidget(m_keyPanel);
    m_statusLine = new QLabel(frame);
    m_statusLine->setObjectName(QStringLiteral("StatusLine"));
    setKeypadStatus(tr("No keypad connected"), QStringLiteral("absent"));
    m_statusLine->setContentsMargins(12, 4, 12, 6);
    left->addWidget(m_statusLine);
    content->addLayout(left);

    m_rightColumn = new QWidget(frame);
    m_rightColumn->setObjectName(QStringLiteral("RightColumn"));
    m_rightColumn->setAttribute(Qt::WA_StyledBackground);
    // The frame's border belongs to the column's 400 pixels.
    m_rightColumn->setFixedWidth(RightColumnWidth - 2 * FrameBorder);
    content->addWidget(m_rightColumn);
    frameLayout->addLayout(content, 1);

    setKeyPanelSize(DefaultKeyPanelSize);
}

void MainWindow::createModel()
{
    UserQuestions::setHandler(&Dialog::ask);
    m_store = new Settings(this);
    ObjectRegistry::registerObject(ComponentId::Settings, m_store);
    if (!m_store->damagedCopyPath().isEmpty())
        tellUser(tr("Your settings were damaged and have been reset."),
                 tr("The damaged file was kept as %1.").arg(m_store->damagedCopyPath()));

    m_layoutConfig = new ButtonLayoutConfig(this);
    ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, m_layoutConfig);
    m_keyItemModel = new KeyItemModel(this);
    ObjectRegistry::registerObject(ComponentId::KeyItemModel, m_keyItemModel);
    m_favorites = new FavoriteKeyItemModel(this);

    connect(m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, this,
            [this](KeyLayout layout) { onButtonLayoutChanged(layout); });
    connect(m_store, &Settings::settingImported, this, &MainWindow::onLayoutImported);
    connect(m_store, &Settings::myFavoriteImported, this, &MainWindow::onFavoritesImported);

    m_keyItemModel->reloadKeyItemsFromSettings();
    m_favorites->reloadKeyItemsFromSettings();
    m_layoutConfig->reloadLayout();
}

// The editor: the key grid on the left; on the right the action palette, the
// form area and the folder tree. The layout in force was read before, so the
// grid is built for it here.
void MainWindow::buildEditor()
{
    auto* panelLayout = new QVBoxLayout(m_keyPanel);
    panelLayout->setContentsMargins(0, 0, 0, 0);
    m_grid = new KeyItemGridView(m_keyPanel);
    panelLayout->addWidget(m_grid);

    auto* column = new QVBoxLayout(m_rightColumn);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(8);
    m_actionList = new ActionList(m_rightColumn);
    m_formArea = new FormArea(m_rightColumn);
    m_treeView = new TreeView(m_rightColumn);
    column->addWidget(m_actionList);
    column->addWidget(m_formArea, 3);
    column->addWidget(m_treeView, 2);
    m_layoutMenu = new LayoutMenu(this);

    connectEditor();
    m_grid->changeLayoutButtonView(KeyLayout(m_layoutConfig->currentLayout()));
    m_layoutMenu->setCurrentLayout(m_layoutConfig->currentLayout());
    m_treeView->onUpdateContent(nullptr);
    showFunctionDescription(FormArea::NoDescription, false);
}

// The model may change on the key action thread (folders opened from the
// keypad), so the views hear of it queued.
void MainWindow::connectEditor()
{
    connect(m_keyItemModel, &KeyItemModel::updateContent, m_grid, &KeyItemGridView::onUpdateContent,
            Qt::QueuedConnection);
    // A rebuilt outline has no current row; the grid's selection is put back.
    connect(
        m_keyItemModel, &KeyItemModel::updateContent, m_treeView,
        [this](const KeyItem* item) {
            m_treeView->onUpdateContent(item);
            m_treeView->onButtonIdxChanged(m_grid->selectedKeyIdx());
        },
        Qt::QueuedConnection);
    connect(m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, m_grid, &KeyItemGridView::changeLayoutButtonView);
    connect(m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, m_layoutMenu,
            [this](KeyLayout layout) { m_layoutMenu->setCurrentLayout(layout); });

    connect(m_grid, &KeyItemGridView::buttonIdxChanged, m_treeView, &TreeView::onButtonIdxChanged);
    connect(m_grid, &KeyItemGridView::buttonIdxChanged, m_actionList, &ActionList::onButtonViewIndexChanged);
    connect(m_grid, &KeyItemGridView::buttonIdxChanged, this, &MainWindow::onKeySelected);
    connect(m_grid, &KeyItemGridView::closeFunctionDescription, m_formArea, &FormArea::closeFunctionDescription);
    connect(m_treeView, &TreeView::treeItemChanged, m_grid, &KeyItemGridView::onTreeItemChanged);
    m_grid->setFavoriteInserter([this](const KeyItem* item) { return m_favorites->appendKeyItem(item); });

    connect(m_actionList, &ActionList::actionItemSelected, this, [this](int actionType) {
        if (actionType >= 0)
            showFunctionDescription(actionType, true);
    });
    connect(m_actionList, &ActionList::preferenceRequested, this, [this] { m_layoutMenu->popup(QCursor::pos()); });
    connect(m_actionList, &ActionList::favoriteWindowRequested, this,
            [] { LOG_MSG(QStringLiteral("My Favorite window requested")); });
    connect(m_layoutMenu, &LayoutMenu::layoutChosen, m_layoutConfig, &ButtonLayoutConfig::changeLayout);
}

void MainWindow::showFunctionDescription(int actionType, bool cancelSelection)
{
    if (cancelSelection)
        m_grid->cancelSelectedKeyButton(false);
    m_formArea->showFunctionDescription(actionType);
}

// A selected key shows its property form; an empty key (or none) shows how
// to give it an action.
void MainWindow::onKeySelected(int keyIdx)
{
    m_formArea->showKeyForm(keyIdx);
}

// The keypad connection starts polling at once; the layout in force reaches
// it first, so the first full update after it opens has a layout to use.
void MainWindow::createDevice()
{
    m_hidComm = new Hid_Comm;
    ObjectRegistry::registerObject(ComponentId::HidComm, m_hidComm);
    m_hidComm->onButtonLayoutChanged(KeyLayout(m_layoutConfig->currentLayout()));
    connect(m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, m_hidComm, &Hid_Comm::onButtonLayoutChanged,
            Qt::DirectConnection);
    connect(m_hidComm, &Hid_Comm::KeyboardStatusChange, this, &MainWindow::onKeyboardStatusChange,
            Qt::QueuedConnection);

    m_keypadMonitor = new KeypadMonitor(this);
    connect(m_keypadMonitor, &KeypadMonitor::keypadArrived, m_hidComm, &Hid_Comm::onKeyboardWasAdded);
    connect(m_keypadMonitor, &KeypadMonitor::keypadRemoved, m_hidComm, &Hid_Comm::onKeyboardWasRemoved);
    m_sleepMonitor = new SleepMonitor(this);
    connect(m_sleepMonitor, &SleepMonitor::aboutToSleep, m_hidComm, &Hid_Comm::onOS_suspend);
    connect(m_sleepMonitor, &SleepMonitor::resumed, m_hidComm, &Hid_Comm::onOS_resumes);

    // Every failed open attempt says "disconnected"; the status line looks
    // once the attempts have settled.
    m_keypadStatusTimer = new QTimer(this);
    m_keypadStatusTimer->setSingleShot(true);
    m_keypadStatusTimer->setInterval(200);
    connect(m_keypadStatusTimer, &QTimer::timeout, this, &MainWindow::showKeypadStatus);
    // The model may change on the key action thread; key images are made on
    // this one.
    connect(m_keyItemModel, &KeyItemModel::updateContent, this, &MainWindow::onModelContentChanged,
            Qt::QueuedConnection);
    connect(
        m_layoutConfig, &ButtonLayoutConfig::buttonLayoutChanged, this, [] { UpdateDevIcon::updateAllIcon(); },
        Qt::QueuedConnection);
}

// Key presses reach the actions on the key action thread; launches and
// websites run on the task thread; folder conditions watch the foreground
// application while this window is in the background.
void MainWindow::createRuntime()
{
    m_taskProxy = new TaskProxy;
    ObjectRegistry::registerObject(ComponentId::TaskProxy, m_taskProxy);
    m_actionServices = std::make_unique<RuntimeActionServices>(WindowSystem::create());
    ActionServices::setInstance(m_actionServices.get());

    m_keyAction = new KeyAction;
    connect(m_hidComm, &Hid_Comm::keyPressed, m_keyAction, &KeyAction::onKeyPressed, Qt::QueuedConnection);
    connect(m_hidComm, &Hid_Comm::keyReleased, m_keyAction, &KeyAction::onKeyRleased, Qt::QueuedConnection);
    connect(m_keyAction, &KeyAction::updateContent, m_grid, &KeyItemGridView::onUpdateContent, Qt::QueuedConnection);

    m_folderCondition = new FolderCondition(FolderConditionIntervalMs, this);
}

void MainWindow::watchForegroundApplications(bool background)
{
    if (!m_folderCondition)
        return;
    if (background)
        m_folderCondition->startFolderConditionDetect();
    else
        m_folderCondition->stopFolderConditionDetect();
}

void MainWindow::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    // Spontaneous hides (another desktop) are not the window going away.
    if (!event->spontaneous())
        QTimer::singleShot(0, this, [this] { watchForegroundApplications(isHidden() || isMinimized()); });
}

void MainWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!isMinimized())
        watchForegroundApplications(false);
}

void MainWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        QTimer::singleShot(0, this, [this] { watchForegroundApplications(isHidden() || isMinimized()); });
}

void MainWindow::onKeyboardStatusChange(bool connected)
{
    if (!m_hidComm)
        return;
    m_keypadStatusTimer->start();
    if (connected)
        UpdateDevIcon::updateAllIcon();
}

// Connected, absent, or present but out of reach for lack of permission:
// the last one names its fix, because nothing else would tell the user.
void MainWindow::showKeypadStatus()
{
    if (!m_hidComm)
        return;
    if (m_hidComm->isOpened() && m_virtualKeypad && m_virtualKeypad->isActive()) {
        setKeypadStatus(tr("Virtual keypad connected"), QStringLiteral("virtual"));
        return;
    }
    if (m_hidComm->isOpened()) {
        setKeypadStatus(tr("Keypad connected"), QStringLiteral("connected"));
        return;
    }
    const KeypadAccess::Result access = KeypadAccess::check();
    if (access.status == KeypadAccess::NoPermission) {
        LOG_MSG(QStringLiteral("keypad at %1 cannot be opened: no permission").arg(access.nodePath));
        setKeypadStatus(tr("Keypad found, but no permission to use it. %1").arg(KeypadAccess::fixText()),
                        QStringLiteral("denied"));
        return;
    }
    setKeypadStatus(tr("No keypad connected"), QStringLiteral("absent"));
}

// A null item stands for the whole page (a folder opened, a layout change).
void MainWindow::onModelContentChanged(const KeyItem* item)
{
    if (!item)
        UpdateDevIcon::updateAllIcon();
    else if (item->ownerList == m_keyItemModel->getCurrentLayoutListHead())
        UpdateDevIcon::updateKeyIcon(item);
}

void MainWindow::onButtonLayoutChanged(int layout)
{
    m_keyItemModel->changeLayoutButtonView(KeyLayout(layout));
    m_store->setValue(SettingsKeys::LastKbLayout, layout);
    setKeyPanelSize(ButtonLayoutConfig::panelSize(layout));
    LOG_MSG(QStringLiteral("layout: %1").arg(ButtonLayoutConfig::layoutName(layout)));
}

KeyItemModel* MainWindow::keyItemModel() const
{
    return m_keyItemModel;
}

FavoriteKeyItemModel* MainWindow::favorites() const
{
    return m_favorites;
}

ButtonLayoutConfig* MainWindow::layoutConfig() const
{
    return m_layoutConfig;
}

void MainWindow::tellUser(const QString& subject, const QString& text)
{
    UserQuestion message;
    message.subject = subject;
    message.text = text;
    message.rightText = tr("OK");
    message.defaultButton = Dialog::RightButton;
    UserQuestions::ask(message);
}

void MainWindow::setupTray()
{
    m_tray = new TrayIcon(this);
    connect(m_tray, &TrayIcon::showRequested, this, &MainWindow::bringWindowToFront);
    connect(m_tray, &TrayIcon::toggleRequested, this, &MainWindow::toggleFromTray);
    connect(m_tray, &TrayIcon::aboutRequested, this, &MainWindow::showAboutBox);
    connect(m_tray, &TrayIcon::quitRequested, this, &MainWindow::quitApplication);
    m_tray->setVisible(true);
    if (!TrayIcon::isTrayAvailable())
        LOG_MSG(QStringLiteral("no system tray: closing the window minimises it"));
}

// The keypad on screen: the tray entry turns it on and off; "--virtual-keypad"
// has installed it before the device thread started, and it is on from the start.
void MainWindow::setupVirtualKeypad()
{
    m_virtualKeypad = new VirtualKeypad(m_hidComm, m_layoutConfig, this);
    connect(m_tray, &TrayIcon::virtualKeypadToggled, m_virtualKeypad, &VirtualKeypad::setActive);
    connect(m_virtualKeypad, &VirtualKeypad::activeChanged, m_tray, &TrayIcon::setVirtualKeypadChecked);
}

void MainWindow::setKeyPanelSize(const QSize& size)
{
    m_keyPanel->setFixedSize(size);
    const int height = size.height() + m_titleBar->height() + m_statusLine->sizeHint().height() + 2 * FrameBorder;
    setFixedSize(size.width() + RightColumnWidth, height);
}

QWidget* MainWindow::keyPanel() const
{
    return m_keyPanel;
}

QWidget* MainWindow::rightColumn() const
{
    return m_rightColumn;
}

void MainWindow::setKeypadStatus(const QString& text, const QString& state)
{
    m_statusLine->setText(text);
    if (!state.isEmpty())
        WidgetLook::setStyleProperty(m_statusLine, "keypad", state);
}

KeyItemGridView* MainWindow::keyGrid() const
{
    return m_grid;
}

ActionList* MainWindow::actionList() const
{
    return m_actionList;
}

FormArea* MainWindow::formArea() const
{
    return m_formArea;
}

TreeView* MainWindow::treeView() const
{
    return m_treeView;
}

VirtualKeypad* MainWindow::virtualKeypad() const
{
    return m_virtualKeypad;
}

Log* MainWindow::log()
{
    return &m_log;
}

void MainWindow::installTranslator(QTranslator* translator, int langIdx)
{
    const QString file = translationFile(langIdx);
    if (translator && !file.isEmpty() && translator->load(file))
        QCoreApplication::installTranslator(translator);
    LOG_MSG(QStringLiteral("lang idx: %1").arg(langIdx));
}

QString MainWindow::translationFile(int langIdx)
{
    static const char* const files[] = {":/translator/en-us.qm", ":/translator/ja.qm", ":/translator/zh-TW.qm",
                                        ":/translator/it.qm",    ":/translator/de.qm", ":/translator/fr.qm"};
    if (langIdx < 0 || langIdx >= int(std::size(files)))
        return QString();
    return QLatin1String(files[langIdx]);
}

void MainWindow::setRestartFlag(bool restart)
{
    m_restartFlag = restart;
}

bool MainWindow::restartFlag() const
{
    return m_restartFlag;
}

void MainWindow::bringWindowToFront()
{
    LOG_MSG(QStringLiteral("bring window to front"));
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    m_windowSystem->activateWindow(windowHandle());
}

void MainWindow::openExtensionFile(const QString& path)
{
    LOG_MSG(QStringLiteral("open extension file: %1").arg(path));
    bringWindowToFront();
    m_importFileName = QFileInfo(path).fileName();
    const Settings::ExportFile file = m_store->importFile(path);
    if (!file.isValid())
        tellUser(tr("%1 could not be imported.").arg(m_importFileName), file.error);
    m_importFileName.clear();
}

void MainWindow::onLayoutImported(const QVariantMap& page)
{
    const int layout = m_keyItemModel->currentLayout();
    int dropped = 0;
    const QList<KeyItem*> items = KeyItemModel::keyItemsFromMap(page, layout, &dropped);

    UserQuestion confirm;
    confirm.subject = tr("Replace the keys of this layout?");
    confirm.text = tr("The keys of the current layout are replaced by those of %1. You can't undo this action.")
                       .arg(m_importFileName);
    if (dropped > 0)
        confirm.text += QLatin1Char('\n') + tr("%n key(s) do not fit this layout and will be lost.", nullptr, dropped);
    confirm.midText = tr("Cancel");
    confirm.rightText = tr("Import");
    if (UserQuestions::ask(confirm).buttonText != tr("Import")) {
        qDeleteAll(items);
        LOG_MSG(QStringLiteral("layout import cancelled"));
        return;
    }
    m_keyItemModel->replaceCurrentLayoutItems(items);
    LOG_MSG(QStringLiteral("layout imported, %1 keys dropped").arg(dropped));
}

void MainWindow::onFavoritesImported(const QVariantMap& favorites)
{
    m_favorites->appendKeyItemFromImportedFile(favorites);
    LOG_MSG(QStringLiteral("favorites imported, now %1").arg(m_favorites->count()));
}

void MainWindow::showAboutBox()
{
    Dialog about(this);
    about.setTitle(tr("About %1").arg(QCoreApplication::applicationName()));
    about.setupDialog(
        QStringLiteral("%1 %2").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion()),
        tr("The desktop companion of your LCD macro keypad."), QString(), QString(), tr("OK"), QString(),
        Dialog::IconLogo, Dialog::RightButton);
    about.exec();
}

void MainWindow::quitApplication()
{
    if (m_quitting)
        return;
    m_quitting = true;
    LOG_MSG(QStringLiteral("quit requested"));
    stopThreads();
    m_keyItemModel->flushPendingSave();
    if (m_settings)
        m_settings->sync();
    m_tray->setVisible(false);
    close();
    QCoreApplication::quit();
}

void MainWindow::restartApplication()
{
    setRestartFlag(true);
    quitApplication();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (m_quitting) {
        event->accept();
        return;
    }
    event->ignore();
    hideToBackground();
}

void MainWindow::hideToBackground()
{
    // Without a tray host a hidden window could not be reached again.
    if (TrayIcon::isTrayAvailable())
        hide();
    else
        showMinimized();
}

void MainWindow::toggleFromTray()
{
    if (isVisible() && !isMinimized() && isActiveWindow())
        hideToBackground();
    else
        bringWindowToFront();
}

void MainWindow::stopThreads()
{
    if (m_ipcThread)
        m_ipcThread->stop();
    if (m_folderCondition)
        m_folderCondition->stopFolderConditionDetect();
    // Keys first, so no action starts while the rest goes away.
    delete m_keyAction;
    m_keyAction = nullptr;
    ActionServices::setInstance(nullptr);
    if (m_taskProxy) {
        ObjectRegistry::unregisterObject(ComponentId::TaskProxy);
        delete m_taskProxy;
        m_taskProxy = nullptr;
    }
    if (m_hidComm) {
        ObjectRegistry::unregisterObject(ComponentId::HidComm);
        delete m_hidComm;
        m_hidComm = nullptr;
    }
}

void MainWindow::startRestartedInstance()
{
    const QString program = QCoreApplication::applicationFilePath();
    if (!QProcess::startDetached(program, {QStringLiteral("--waitInst")}))
        qWarning().noquote() << "Could not restart" << program;
}
