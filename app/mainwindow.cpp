#include "mainwindow.h"

#include "actionlist.h"
#include "agentcore.h"
#include "buttonlayoutconfig.h"
#include "clicklabel.h"
#include "dialog.h"
#include "editorfocus.h"
#include "favorite.h"
#include "favoritekeyitemmodel.h"
#include "foldercondition.h"
#include "formarea.h"
#include "functiondescription.h"
#include "ipc_thread.h"
#include "keyaction.h"
#include "keyitem.h"
#include "keyitemgridview.h"
#include "keyitemmodel.h"
#include "keypadaccess.h"
#include "keypadstatus.h"
#include "livefaceupdater.h"
#include "logging.h"
#include "objectregistry.h"
#include "preferencecontext.h"
#include "preferencelauncher.h"
#include "settings.h"
#include "startupflags.h"
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
#include <QDebug>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QIcon>
#include <QLabel>
#include <QLibraryInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSettings>
#include <QShowEvent>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

namespace {

// The visible frame's border, drawn by the style sheet around the content.
constexpr int FrameBorder = 1;

// The key grid widens the window by the same room when its layout changes.
constexpr int RightColumnWidth = KeyItemGridView::MainWindowExtraWidth;

} // namespace

MainWindow::MainWindow(QSettings* settings, bool runInBackground, QWidget* parent)
    : QWidget(parent), m_settings(settings)
{
    ObjectRegistry::registerMainWindow(this, &m_log);
    LOG_MSG(QStringLiteral("%1 %2 starting, log %3")
                .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(), m_log.filePath()));

    UserQuestions::setHandler(&Dialog::ask);
    connect(VirtualKey::instance(), &VirtualKey::keystrokesUnavailable, this,
            [this](const QString& fix) { tellUser(tr("Hotkeys and macros cannot type keys."), fix); });
    connect(VirtualKey::instance(), &VirtualKey::keystrokesReachXOnly, this,
            [this](const QString& fix) { tellUser(tr("Hotkeys and macros type into X applications only."), fix); });

    createCore();
    buildWindow();
    connectCore();
    setupTray();
    setupVirtualKeypad();
    setupPreferences();

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
    m_core->keyItemModel()->flushPendingSave();
    if (m_settings)
        m_settings->sync();
    UserQuestions::setHandler(nullptr);
    VirtualKey::setMainWindowId(0);
    // The editor's widgets and helpers go before the core whose objects they
    // show, and the core before the log it writes to.
    while (!children().isEmpty())
        delete children().constFirst();
    m_core.reset();
    LOG_MSG(QStringLiteral("main window closed%1").arg(m_restartFlag ? QStringLiteral(", restarting") : QString()));
    ObjectRegistry::unregisterMainWindow();
    if (m_restartFlag)
        startRestartedInstance();
}

// The core first: the window is built for the layout it read.
void MainWindow::createCore()
{
    m_core = std::make_unique<AgentCore>();
    Settings* store = m_core->settingsStore();
    // Told from the event loop, once the window stands and a termination
    // signal can still end the program while the message is open.
    if (!store->damagedCopyPath().isEmpty())
        QTimer::singleShot(0, this, [this, kept = store->damagedCopyPath()] {
            tellUser(tr("Your settings were damaged and have been reset."),
                     tr("The damaged file was kept as %1.").arg(kept));
        });
    // Queued: a save can fail in the middle of other work.
    connect(
        store, &Settings::saveFailed, this,
        [this](const QString& fileName, const QString& reason) {
            if (m_quitting)
                return;
            tellUser(tr("Your settings cannot be saved."),
                     tr("%1 cannot be written: %2. Your changes are kept while %3 runs and saved as soon as the "
                        "file can be written again.")
                         .arg(fileName, reason, QCoreApplication::applicationName()));
        },
        Qt::QueuedConnection);
    connect(store, &Settings::settingImported, this, &MainWindow::onLayoutImported);
    connect(store, &Settings::myFavoriteImported, this, &MainWindow::onFavoritesImported);
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
    for (TitleBar::Button button : {TitleBar::AboutButton, TitleBar::MinimizeButton, TitleBar::CloseButton})
        m_titleBar->button(button)->setFocusPolicy(Qt::TabFocus);
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
    // The frame's border belongs to the column's width.
    m_rightColumn->setFixedWidth(RightColumnWidth - 2 * FrameBorder);
    content->addWidget(m_rightColumn);
    frameLayout->addLayout(content, 1);

    setKeyPanelSize(ButtonLayoutConfig::panelSize(layoutConfig()->currentLayout()));
}

// The editor's widgets are made the first time the window is shown (or asked
// for): a program started in the background at login may never show them, and
// they hold much of its memory.
void MainWindow::setVisible(bool visible)
{
    if (visible)
        ensureEditor();
    QWidget::setVisible(visible);
}

void MainWindow::ensureEditor()
{
    if (!m_grid)
        buildEditor();
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
    m_editorFocus = new EditorFocus({m_grid, m_actionList, m_formArea, m_treeView, m_titleBar}, this);
    m_favorite = new Favorite(favorites(), this);

    connectEditor();
    m_grid->changeLayoutButtonView(KeyLayout(layoutConfig()->currentLayout()));
    m_treeView->onUpdateContent(nullptr);
    showFunctionDescription(FormArea::NoDescription, false);
}

// The model may change on the key action thread (folders opened from the
// keypad), so the views hear of it queued.
void MainWindow::connectEditor()
{
    KeyItemModel* model = keyItemModel();
    ButtonLayoutConfig* layouts = layoutConfig();
    connect(layouts, &ButtonLayoutConfig::buttonLayoutChanged, this,
            [this](KeyLayout layout) { setKeyPanelSize(ButtonLayoutConfig::panelSize(layout)); });
    connect(model, &KeyItemModel::updateContent, m_grid, &KeyItemGridView::onUpdateContent, Qt::QueuedConnection);
    // A rebuilt outline has no current row; the grid's selection is put back.
    connect(
        model, &KeyItemModel::updateContent, m_treeView,
        [this](const KeyItem* item) {
            m_treeView->onUpdateContent(item);
            m_treeView->onButtonIdxChanged(m_grid->selectedKeyIdx());
        },
        Qt::QueuedConnection);
    connect(layouts, &ButtonLayoutConfig::buttonLayoutChanged, m_grid, &KeyItemGridView::changeLayoutButtonView);

    connect(m_grid, &KeyItemGridView::buttonIdxChanged, m_treeView, &TreeView::onButtonIdxChanged);
    connect(m_grid, &KeyItemGridView::buttonIdxChanged, m_actionList, &ActionList::onButtonViewIndexChanged);
    connect(m_grid, &KeyItemGridView::buttonIdxChanged, this, &MainWindow::onKeySelected);
    connect(m_grid, &KeyItemGridView::closeFunctionDescription, m_formArea, &FormArea::closeFunctionDescription);
    connect(m_treeView, &TreeView::treeItemChanged, m_grid, &KeyItemGridView::onTreeItemChanged);
    connectFavorites();

    connect(m_actionList, &ActionList::actionItemSelected, this, [this](int actionType) {
        if (actionType >= 0)
            showFunctionDescription(actionType, true);
    });
    connect(m_actionList, &ActionList::favoriteWindowRequested, m_favorite, &Favorite::bringWindowToFront);
    connect(m_actionList, &ActionList::preferenceRequested, m_preferences, &PreferenceLauncher::open);

    connect(m_core->keyAction(), &KeyAction::updateContent, m_grid, &KeyItemGridView::onUpdateContent,
            Qt::QueuedConnection);
    // Live keys redraw in the grid as on the keypad.
    connect(m_core->liveFaces(), &LiveFaceUpdater::faceChanged, m_grid, &KeyItemGridView::onUpdateContent);
}

// "&Save as favorite" shows the new item at the end of the pad; Enter on a
// favourite puts it on the selected key, as a drop there would.
void MainWindow::connectFavorites()
{
    m_grid->setFavoriteInserter([this](const KeyItem* item) {
        const bool kept = m_favorite->insertKeyItem(item);
        m_favorite->moveScrollbarToBottom();
        return kept;
    });
    connect(m_favorite, &Favorite::favoriteActivated, m_grid, [this](const KeyItem* item) {
        m_grid->controller_dropKeyItemFromFavoriteGridView(item, m_grid->selectedKeyIdx());
    });
    connect(m_favorite, &Favorite::visibilityChanged, m_actionList, [this](bool visible) {
        if (!visible)
            m_actionList->cancelSelectedFavoriteButton();
    });
}

// What the core does shows in the editor: faces flipped from the keypad, the
// description reset when the window goes to the background, the keypad's
// state in the status line.
void MainWindow::connectCore()
{
    // Away from the editor, no key stays selected under a stale description.
    connect(m_core->folderCondition(), &FolderCondition::functionDescriptionWanted, this,
            [this](int actionType) { showFunctionDescription(actionType, true); });
    KeypadStatus* status = m_core->keypadStatus();
    connect(status, &KeypadStatus::stateChanged, this, &MainWindow::showKeypadStatus);
    showKeypadStatus(status->state());
}

void MainWindow::showFunctionDescription(int actionType, bool cancelSelection)
{
    // An editor not made yet starts with no selection and the drag hint.
    if (!m_grid)
        return;
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

void MainWindow::watchForegroundApplications(bool background)
{
    FolderCondition* folderCondition = m_core->folderCondition();
    if (background)
        folderCondition->startFolderConditionDetect();
    else
        folderCondition->stopFolderConditionDetect();
    // Live keys are sampled for the grid only while the window is seen.
    if (LiveFaceUpdater* liveFaces = m_core->liveFaces())
        liveFaces->setEditorVisible(!background);
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
    // The keyboard starts on the keys (new window flags forget the focus).
    if (!focusWidget())
        m_grid->setFocus();
}

void MainWindow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        QTimer::singleShot(0, this, [this] { watchForegroundApplications(isHidden() || isMinimized()); });
}

// Connected, absent, or present but out of reach for lack of permission:
// the last one names its fix, because nothing else would tell the user.
void MainWindow::showKeypadStatus(int state)
{
    QString text;
    QString look;
    switch (state) {
    case KeypadStatus::Connected:
        if (m_virtualKeypad && m_virtualKeypad->isActive()) {
            text = tr("Virtual keypad connected");
            look = QStringLiteral("virtual");
        } else {
            text = tr("Keypad connected");
            look = QStringLiteral("connected");
        }
        break;
    case KeypadStatus::NoPermission:
        text = tr("Keypad found, but no permission to use it. %1").arg(KeypadAccess::fixText());
        look = QStringLiteral("denied");
        break;
    default:
        text = tr("No keypad connected");
        look = QStringLiteral("absent");
        break;
    }
    setKeypadStatus(text, look);
    if (m_tray)
        m_tray->showKeypadState(static_cast<KeypadStatus::State>(state), text);
}

// Tab goes round the editor's parts in the order the user sees them, not in
// the order their widgets were made.
bool MainWindow::focusNextPrevChild(bool next)
{
    return (m_editorFocus && m_editorFocus->moveFocus(next)) || QWidget::focusNextPrevChild(next);
}

bool MainWindow::event(QEvent* event)
{
    // The typing thread must not ask the window: it is told the id here,
    // each time the native window is made again (its flags changed).
    if (event->type() == QEvent::WinIdChange)
        VirtualKey::setMainWindowId(quint64(internalWinId()));
    return QWidget::event(event);
}

AgentCore* MainWindow::core() const
{
    return m_core.get();
}

KeyItemModel* MainWindow::keyItemModel() const
{
    return m_core->keyItemModel();
}

FavoriteKeyItemModel* MainWindow::favorites() const
{
    return m_core->favorites();
}

ButtonLayoutConfig* MainWindow::layoutConfig() const
{
    return m_core->layoutConfig();
}

void MainWindow::tellUser(const QString& subject, const QString& text)
{
    LOG_MSG(QStringLiteral("telling the user: %1 %2").arg(subject, text));
    UserQuestion message;
    message.subject = subject;
    message.text = text;
    message.buttons[UserQuestion::RightSlot] = UserQuestion::Ok;
    message.defaultButton = UserQuestion::Ok;
    UserQuestions::ask(message);
}

void MainWindow::setupTray()
{
    m_tray = new TrayIcon(this);
    connect(m_tray, &TrayIcon::showRequested, this, &MainWindow::bringWindowToFront);
    connect(m_tray, &TrayIcon::toggleRequested, this, &MainWindow::toggleFromTray);
    connect(m_tray, &TrayIcon::aboutRequested, this, &MainWindow::showAboutBox);
    connect(m_tray, &TrayIcon::quitRequested, this, &MainWindow::quitApplication);
    showKeypadStatus(m_core->keypadStatus()->state());
    m_tray->setVisible(true);
    if (!TrayIcon::isTrayAvailable())
        LOG_MSG(QStringLiteral("no system tray: closing the window minimises it"));
}

// The keypad on screen: the tray entry turns it on and off; "--virtual-keypad"
// has installed it before the device thread started, and it is on from the start.
void MainWindow::setupVirtualKeypad()
{
    m_virtualKeypad = new VirtualKeypad(m_core->hidComm(), layoutConfig(), this);
    connect(m_tray, &TrayIcon::virtualKeypadToggled, m_virtualKeypad, &VirtualKeypad::setActive);
    connect(m_virtualKeypad, &VirtualKeypad::activeChanged, m_tray, &TrayIcon::setVirtualKeypadChecked);
}

// The preference dialog works on the core's objects and, for importing and
// restarting, on this window; the palette's Settings and the tray open it.
void MainWindow::setupPreferences()
{
    PreferenceContext context;
    context.store = m_core->settingsStore();
    context.startupSettings = m_settings;
    context.layouts = layoutConfig();
    context.keyModel = keyItemModel();
    context.hid = m_core->hidComm();
    context.dimmer = m_core->keypadDimmer();
    context.screenLock = m_core->screenLockMonitor();
    context.runInBackground = BackgroundTask::onTaskProxy(m_core->taskProxy());
    context.redrawKeypad = [] { UpdateDevIcon::updateAllIcon(); };
    context.importFile = [this](const QString& path) { openExtensionFile(path); };
    context.restart = [this] { restartApplication(); };
    m_preferences = new PreferenceLauncher(context, this);
    connect(m_tray, &TrayIcon::settingsRequested, m_preferences, &PreferenceLauncher::open);
}

PreferenceLauncher* MainWindow::preferences() const
{
    return m_preferences;
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
    m_statusLine->setAccessibleName(tr("Keypad status: %1").arg(text));
    if (!state.isEmpty())
        WidgetLook::setStyleProperty(m_statusLine, "keypad", state);
}

KeyItemGridView* MainWindow::keyGrid() const
{
    const_cast<MainWindow*>(this)->ensureEditor();
    return m_grid;
}

ActionList* MainWindow::actionList() const
{
    const_cast<MainWindow*>(this)->ensureEditor();
    return m_actionList;
}

Favorite* MainWindow::favoriteWindow() const
{
    const_cast<MainWindow*>(this)->ensureEditor();
    return m_favorite;
}

FormArea* MainWindow::formArea() const
{
    const_cast<MainWindow*>(this)->ensureEditor();
    return m_formArea;
}

TreeView* MainWindow::treeView() const
{
    const_cast<MainWindow*>(this)->ensureEditor();
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

namespace {

// Each language: our own texts, and the locale of Qt's own (the context
// menus of text fields, the colour and file dialogs) from Debian's
// qttranslations5-l10n.
struct UiLanguage
{
    const char* file;
    const char* qtLocale;
};
constexpr UiLanguage UiLanguages[] = {{":/translator/en-us.qm", "en"},    {":/translator/ja.qm", "ja"},
                                      {":/translator/zh-TW.qm", "zh_TW"}, {":/translator/it.qm", "it"},
                                      {":/translator/de.qm", "de"},       {":/translator/fr.qm", "fr"}};

void installQtTranslator(int langIdx)
{
    static QTranslator qtTexts;
    const QString name = QStringLiteral("qtbase_") + QLatin1String(UiLanguages[langIdx].qtLocale);
    if (qtTexts.load(name, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qtTexts);
    else
        QCoreApplication::removeTranslator(&qtTexts);
    if (qtTexts.isEmpty() && langIdx != 0)
        LOG_MSG(QStringLiteral("Qt's own texts stay English: no %1.qm (package qttranslations5-l10n)").arg(name));
}

} // namespace

void MainWindow::installTranslator(QTranslator* translator, int langIdx)
{
    const QString file = translationFile(langIdx);
    if (translator && !file.isEmpty() && translator->load(file)) {
        QCoreApplication::installTranslator(translator);
        installQtTranslator(langIdx);
    }
    LOG_MSG(QStringLiteral("lang idx: %1").arg(langIdx));
}

QString MainWindow::translationFile(int langIdx)
{
    if (langIdx < 0 || langIdx >= int(std::size(UiLanguages)))
        return QString();
    return QLatin1String(UiLanguages[langIdx].file);
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
    m_core->windowSystem()->activateWindow(windowHandle());
}

void MainWindow::openExtensionFile(const QString& path)
{
    LOG_MSG(QStringLiteral("open extension file: %1").arg(path));
    bringWindowToFront();
    m_importFileName = QFileInfo(path).fileName();
    const Settings::ExportFile file = m_core->settingsStore()->importFile(path);
    if (!file.isValid())
        tellUser(tr("%1 could not be imported.").arg(m_importFileName), file.error);
    m_importFileName.clear();
}

void MainWindow::onLayoutImported(const QVariantMap& page)
{
    KeyItemModel* model = keyItemModel();
    const int layout = model->currentLayout();
    int dropped = 0;
    const QList<KeyItem*> items = KeyItemModel::keyItemsFromMap(page, layout, &dropped);

    UserQuestion confirm;
    confirm.subject = tr("Replace the keys of this layout?");
    confirm.text = dropped > 0 ? tr("The keys of the current layout are replaced by those of %1. You can't undo this "
                                    "action.\n%n key(s) do not fit this layout and will be lost.",
                                    nullptr, dropped)
                                     .arg(m_importFileName)
                               : tr("The keys of the current layout are replaced by those of %1. You can't undo this "
                                    "action.")
                                     .arg(m_importFileName);
    confirm.buttons[UserQuestion::MidSlot] = UserQuestion::Cancel;
    confirm.buttons[UserQuestion::RightSlot] = UserQuestion::Import;
    if (UserQuestions::ask(confirm).button != UserQuestion::Import) {
        qDeleteAll(items);
        LOG_MSG(QStringLiteral("layout import cancelled"));
        return;
    }
    model->replaceCurrentLayoutItems(items);
    LOG_MSG(QStringLiteral("layout imported, %1 keys dropped").arg(dropped));
}

void MainWindow::onFavoritesImported(const QVariantMap& favorites)
{
    FavoriteKeyItemModel* model = this->favorites();
    model->appendKeyItemFromImportedFile(favorites);
    LOG_MSG(QStringLiteral("favorites imported, now %1").arg(model->count()));
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
    // A page may be running something that must not be cut short.
    QString why;
    if (m_preferences && !m_preferences->canClose(why)) {
        LOG_MSG(QStringLiteral("quit refused: %1").arg(why));
        m_restartFlag = false;
        tellUser(tr("%1 cannot quit now.").arg(QCoreApplication::applicationName()), why);
        return;
    }
    m_quitting = true;
    LOG_MSG(QStringLiteral("quit requested"));
    if (m_preferences)
        m_preferences->closeNow();
    stopThreads();
    keyItemModel()->flushPendingSave();
    if (m_settings)
        m_settings->sync();
    m_tray->setVisible(false);
    if (m_favorite)
        m_favorite->hide();
    close();
    QCoreApplication::quit();
}

void MainWindow::restartApplication()
{
    m_restartInBackground = !isVisible() || isMinimized();
    m_restartWithVirtualKeypad = m_virtualKeypad && m_virtualKeypad->isActive();
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
    if (m_favorite)
        m_favorite->hide();
    // Without a tray host a hidden window could not be reached again.
    if (!TrayIcon::isTrayAvailable()) {
        showMinimized();
        return;
    }
    hide();
    // In the tray for hours, maybe: the window's picture, megabytes of memory
    // shared with the display server, goes with its native window, which is
    // made again when the window comes back.
    QTimer::singleShot(0, this, [this] {
        if (isHidden())
            destroy();
    });
}

void MainWindow::toggleFromTray()
{
    if (isVisible() && !isMinimized() && isActiveWindow())
        hideToBackground();
    else
        bringWindowToFront();
}

// The hand-over thread first, so no request reaches a window on its way
// out; then the core's threads in their own order.
void MainWindow::stopThreads()
{
    if (m_ipcThread)
        m_ipcThread->stop();
    m_core->stop();
}

void MainWindow::startRestartedInstance()
{
    QProcess process;
    process.setProgram(QCoreApplication::applicationFilePath());
    QStringList arguments{QStringLiteral("--waitInst")};
    // Taken from anywhere on the command line, unlike the other options.
    if (m_restartWithVirtualKeypad)
        arguments << QStringLiteral("--virtual-keypad");
    process.setArguments(arguments);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (m_restartInBackground)
        environment.insert(QLatin1String(RestartInBackgroundVariable), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    if (!process.startDetached())
        qWarning().noquote() << "Could not restart" << process.program();
}
