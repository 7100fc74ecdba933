#include "iconchooser.h"

#include "choosersearchfield.h"
#include "dialogbuttons.h"
#include "formdialogs.h"
#include "iconcatalog.h"
#include "icongridpage.h"
#include "iconthemeindex.h"
#include "keyfacerenderer.h"
#include "keyiconimage.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QPointer>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// The source the chooser opened on last, for the next time in this session.
IconChooser::Source lastSource = IconChooser::Theme;

QString searchTextOf(const QStringList& parts)
{
    QString text = parts.join(QLatin1Char(' '));
    // "go-next" is found by "go next" as well.
    return text + QLatin1Char(' ') + QString(text).replace(QLatin1Char('-'), QLatin1Char(' '));
}

} // namespace

IconChooser::IconChooser(const KeyRenderInfo& face, QWidget* parent, IconCatalog* catalog)
    : QDialog(parent), m_catalog(catalog ? catalog : IconCatalog::instance())
{
    m_face.assignFrom(face);
    setWindowTitle(tr("Choose Icon"));
    IconThemeIndex::applyFallbackTheme();

    auto* layout = new QVBoxLayout(this);
    m_tabs = new QTabWidget(this);
    m_tabs->addTab(createFilePage(), tr("Image &file"));
    m_themePage = createThemePage();
    m_tabs->addTab(m_themePage, tr("Icon &theme"));
    m_emojiPage = createEmojiPage();
    m_tabs->addTab(m_emojiPage, tr("&Emoji"));
    layout->addWidget(m_tabs, 1);

    auto* previewRow = new QHBoxLayout;
    m_preview = new QLabel(this);
    m_preview->setFixedSize(KeyFaceRenderer::FaceSize, KeyFaceRenderer::FaceSize);
    m_preview->setToolTip(tr("The key with this icon"));
    m_preview->setAccessibleName(m_preview->toolTip());
    m_previewName = new QLabel(this);
    m_previewName->setWordWrap(true);
    previewRow->addWidget(m_preview);
    previewRow->addWidget(m_previewName, 1);
    layout->addLayout(previewRow);

    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    DialogButtons::useOwnTexts(m_buttons);
    for (QAbstractButton* button : m_buttons->buttons())
        button->setAccessibleName(button->text().remove(QLatin1Char('&')));
    layout->addWidget(m_buttons);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    connect(m_catalog, &IconCatalog::started, this, [this](IconCatalog::Source source) { onCatalogStarted(source); });
    connect(m_catalog, &IconCatalog::finished, this, [this](IconCatalog::Source source) { onCatalogFinished(source); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &IconChooser::onSourceShown);

    resize(560, 600);
    if (m_catalog->hasResult(IconCatalog::ThemeIcons))
        showThemeIcons();
    if (m_catalog->hasResult(IconCatalog::Emoji))
        showEmoji();
    m_tabs->setCurrentIndex(lastSource);
    onSourceShown();
}

QWidget* IconChooser::createFilePage()
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    m_fileButton = new QPushButton(tr("Choose image file…"), page);
    m_fileButton->setAccessibleName(m_fileButton->text());
    auto* row = new QHBoxLayout;
    row->addWidget(m_fileButton);
    row->addStretch(1);
    layout->addLayout(row);
    m_fileStatus = new QLabel(page);
    m_fileStatus->setWordWrap(true);
    layout->addWidget(m_fileStatus);
    auto* note = new QLabel(tr("PNG, JPEG, SVG, WebP, GIF (its first picture) and the other image formats of this "
                               "system. The picture is fitted into the key without distortion; transparent parts "
                               "stay transparent."),
                            page);
    note->setObjectName(QStringLiteral("FormNote"));
    note->setWordWrap(true);
    layout->addWidget(note);
    layout->addStretch(1);
    connect(m_fileButton, &QPushButton::clicked, this, &IconChooser::browseFile);
    return page;
}

IconGridPage* IconChooser::createThemePage()
{
    auto* page = new IconGridPage(tr("&Icons:"), &KeyIconImage::fromThemeIcon, this);
    connect(page, &IconGridPage::currentChanged, this, &IconChooser::updateChoice);
    connect(page, &IconGridPage::activated, this, [this] {
        if (!chosenImage().isNull())
            accept();
    });
    return page;
}

IconGridPage* IconChooser::createEmojiPage()
{
    auto* page = new IconGridPage(tr("E&moji:"), &KeyIconImage::fromEmoji, this);
    connect(page, &IconGridPage::currentChanged, this, &IconChooser::updateChoice);
    connect(page, &IconGridPage::activated, this, [this] {
        if (!chosenImage().isNull())
            accept();
    });
    return page;
}

IconChooser::Source IconChooser::source() const
{
    return Source(m_tabs->currentIndex());
}

void IconChooser::setSource(Source source)
{
    m_tabs->setCurrentIndex(source);
}

IconGridPage* IconChooser::page(Source source) const
{
    return source == Theme ? m_themePage : source == Emoji ? m_emojiPage : nullptr;
}

QPushButton* IconChooser::okButton() const
{
    return m_buttons->button(QDialogButtonBox::Ok);
}

QImage IconChooser::chosenImage() const
{
    if (source() == File)
        return m_fileImage;
    return page(source())->currentImage();
}

QString IconChooser::chosenName() const
{
    if (source() == File)
        return m_fileName;
    return page(source())->currentLabel();
}

void IconChooser::browseFile()
{
    const QPointer<IconChooser> self(this);
    const QString path = FormDialogs::chooseFile(this, FormDialogs::FileKind::Image);
    if (self && !path.isEmpty())
        useFile(path);
}

bool IconChooser::useFile(const QString& path)
{
    QString error;
    const QImage image = KeyIconImage::fromFile(path, &error);
    if (image.isNull()) {
        m_fileStatus->setText(tr("%1 cannot be read: %2").arg(QFileInfo(path).fileName(), error));
        m_fileImage = QImage();
        m_fileName.clear();
    } else {
        m_fileImage = image;
        m_fileName = QFileInfo(path).fileName();
        m_fileStatus->setText(path);
    }
    updateChoice();
    return !image.isNull();
}

void IconChooser::onSourceShown()
{
    lastSource = source();
    if (source() == Theme)
        m_catalog->request(IconCatalog::ThemeIcons);
    else if (source() == Emoji)
        m_catalog->request(IconCatalog::Emoji);
    if (IconGridPage* grid = page(source()))
        grid->searchField()->setFocus();
    else
        m_fileButton->setFocus();
    updateChoice();
}

void IconChooser::onCatalogStarted(int source)
{
    if (source == IconCatalog::ThemeIcons)
        m_themePage->showStatus(tr("Reading the icon theme…"));
    else
        m_emojiPage->showStatus(tr("Reading the emoji…"));
}

void IconChooser::onCatalogFinished(int source)
{
    if (source == IconCatalog::ThemeIcons)
        showThemeIcons();
    else
        showEmoji();
}

void IconChooser::showThemeIcons()
{
    QVector<IconListModel::Entry> entries;
    const QStringList names = m_catalog->themeIconNames();
    entries.reserve(names.size());
    for (const QString& name : names)
        entries.append({name, name, searchTextOf({name})});
    m_themePage->showStatus(names.isEmpty() ? tr("The icon theme \"%1\" has no icons.").arg(m_catalog->themeName())
                                            : QString());
    m_themePage->setEntries(entries);
}

void IconChooser::showEmoji()
{
    QVector<IconListModel::Entry> entries;
    const EmojiList emoji = m_catalog->emoji();
    entries.reserve(emoji.size());
    for (const EmojiEntry& entry : emoji)
        entries.append({entry.emoji, entry.name, searchTextOf({entry.name, entry.group, entry.subgroup})});
    m_emojiPage->showStatus(m_catalog->emojiError());
    m_emojiPage->setEntries(entries);
}

void IconChooser::updateChoice()
{
    const QImage image = chosenImage();
    KeyRenderInfo face;
    face.assignFrom(m_face);
    face.userImg = QPixmap::fromImage(image);
    m_preview->setPixmap(
        QPixmap::fromImage(image.isNull() ? KeyFaceRenderer::render(m_face) : KeyFaceRenderer::render(face)));
    m_previewName->setText(image.isNull() ? tr("No icon chosen.") : chosenName());
    okButton()->setEnabled(!image.isNull());
}
