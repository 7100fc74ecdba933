#include "faceeditor.h"

#include "buttonlayoutconfig.h"
#include "facehints.h"
#include "formdialogs.h"
#include "keyfacerenderer.h"
#include "keyiconimage.h"
#include "keyitem.h"
#include "keyitemeditor.h"
#include "keyitemform.h"
#include "keyitemmodel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QTextDocument>
#include <QVBoxLayout>

namespace {

constexpr int IconTileSide = 40;
constexpr int TitleLines = 2;

QPushButton* namedButton(const QString& text, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setAccessibleName(text);
    return button;
}

} // namespace

FaceEditor::FaceEditor(KeyItemEditor* editor, int slot, const QString& titleLabel, QWidget* parent)
    : QWidget(parent), m_editor(editor), m_slot(slot)
{
    setObjectName(QStringLiteral("FaceEditor"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);

    m_title = new QPlainTextEdit(this);
    m_title->setObjectName(QStringLiteral("TitleField"));
    m_title->setPlaceholderText(tr("Shown on the key"));
    // Enter starts a new line of the title; Tab leaves the field.
    m_title->setTabChangesFocus(true);
    m_title->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_title->setAccessibleName(titleLabel);
    const int lineHeight = m_title->fontMetrics().lineSpacing();
    const int margins = int(2 * m_title->document()->documentMargin()) + 2 * m_title->frameWidth() + 6;
    m_title->setFixedHeight(TitleLines * lineHeight + margins);
    auto* caption = new QLabel(titleLabel, this);
    caption->setObjectName(QStringLiteral("FieldLabel"));
    caption->setBuddy(m_title);
    m_style = namedButton(tr("Style…"), this);
    auto* titleRow = new QHBoxLayout;
    titleRow->addWidget(m_title, 1);
    titleRow->addWidget(m_style, 0, Qt::AlignTop);
    layout->addWidget(caption);
    layout->addLayout(titleRow);

    m_icon = new QLabel(this);
    m_icon->setFixedSize(IconTileSide, IconTileSide);
    m_icon->setToolTip(tr("Icon"));
    m_icon->setAccessibleName(m_icon->toolTip());
    m_chooseIcon = namedButton(tr("Choose icon…"), this);
    m_defaultIcon = namedButton(tr("Use default icon"), this);
    // The two buttons one above the other: side by side their names are
    // wider than the form's column in some languages.
    auto* iconButtons = new QVBoxLayout;
    iconButtons->setSpacing(4);
    iconButtons->addWidget(m_chooseIcon, 0, Qt::AlignLeft);
    iconButtons->addWidget(m_defaultIcon, 0, Qt::AlignLeft);
    auto* iconRow = new QHBoxLayout;
    iconRow->addWidget(m_icon, 0, Qt::AlignTop);
    iconRow->addLayout(iconButtons);
    iconRow->addStretch(1);
    layout->addLayout(iconRow);

    // The entries in FaceHints::LiveKind order: the index is the kind.
    m_live = new QComboBox(this);
    m_live->addItems({tr("None"), tr("Processor"), tr("Memory"), tr("Network"), tr("Clock"), tr("Date")});
    m_live->setAccessibleName(tr("Live content:"));
    auto* liveCaption = new QLabel(tr("Live content:"), this);
    liveCaption->setBuddy(m_live);
    m_graph = new QCheckBox(tr("Graph"), this);
    m_graph->setAccessibleName(m_graph->text());
    m_graph->setToolTip(tr("A graph of the last minute under the value"));
    auto* liveRow = new QHBoxLayout;
    liveRow->addWidget(liveCaption);
    liveRow->addWidget(m_live);
    liveRow->addStretch(1);
    layout->addLayout(liveRow);
    // Its own line: beside the list it would widen the narrowest forms.
    layout->addWidget(m_graph);

    if (slot == 1) {
        for (QWidget* control :
             {static_cast<QWidget*>(m_style), static_cast<QWidget*>(m_chooseIcon), static_cast<QWidget*>(m_defaultIcon),
              static_cast<QWidget*>(m_live), static_cast<QWidget*>(m_graph)})
            control->setAccessibleDescription(tr("Of the second hotkey"));
    }

    connect(m_title, &QPlainTextEdit::textChanged, this,
            [this] { m_editor->setTitle(m_slot, m_title->toPlainText()); });
    connect(m_style, &QPushButton::clicked, this, &FaceEditor::chooseStyle);
    connect(m_chooseIcon, &QPushButton::clicked, this, &FaceEditor::chooseIcon);
    connect(m_defaultIcon, &QPushButton::clicked, this, &FaceEditor::useDefaultIcon);
    connect(m_live, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &FaceEditor::applyLiveContent);
    connect(m_graph, &QCheckBox::toggled, this, &FaceEditor::applyLiveContent);
}

void FaceEditor::refresh(const KeyItem& item)
{
    if (m_slot < 0 || m_slot >= KeyItem::SlotCount)
        return;
    const KeyRenderInfo& face = item.render[m_slot];
    {
        // Setting the text the model holds edits nothing.
        const QSignalBlocker blocker(m_title);
        KeyItemForm::setTextIfDifferent(m_title, face.text);
    }
    m_icon->setPixmap(iconTile(item, m_slot));
    m_defaultIcon->setEnabled(!face.userImg.isNull());
    const FaceHints::LiveKind kind = FaceHints::liveKind(face.hintFlags);
    {
        const QSignalBlocker liveBlocker(m_live);
        const QSignalBlocker graphBlocker(m_graph);
        m_live->setCurrentIndex(int(kind));
        m_graph->setChecked(FaceHints::showsGraph(face.hintFlags));
    }
    m_graph->setEnabled(FaceHints::canShowGraph(kind));
}

void FaceEditor::applyLiveContent()
{
    m_editor->setLiveContent(m_slot, m_live->currentIndex(), m_graph->isChecked());
    refreshFromModel();
}

void FaceEditor::refreshFromModel()
{
    if (const KeyItem* item = m_editor->item())
        refresh(*item);
}

QSize FaceEditor::gridIconSize() const
{
    const KeyItemModel* model = m_editor->model();
    return model ? ButtonLayoutConfig::iconSize(model->currentLayout()) : QSize();
}

// The icon as the key shows it: on black, without the title.
QPixmap FaceEditor::iconTile(const KeyItem& item, int slot)
{
    const KeyRenderInfo& face = item.render[slot];
    const QImage picture =
        face.userImg.isNull() ? KeyFaceRenderer::defaultImage(face.defImgPath) : face.userImg.toImage();
    QPixmap tile(IconTileSide, IconTileSide);
    tile.fill(Qt::black);
    const QImage fitted = KeyIconImage::fitted(picture);
    if (!fitted.isNull()) {
        QPainter painter(&tile);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(tile.rect().adjusted(2, 2, -2, -2), fitted);
    }
    return tile;
}

// A copy: the item may change while a dialog is open. False once it is gone.
bool FaceEditor::copyFace(KeyRenderInfo* face) const
{
    const KeyItem* item = m_editor->item();
    if (item)
        face->assignFrom(item->render[m_slot]);
    return item != nullptr;
}

void FaceEditor::chooseStyle()
{
    KeyRenderInfo face;
    if (!copyFace(&face))
        return;
    const QPointer<FaceEditor> self(this);
    TitleStyle style;
    if (!FormDialogs::chooseTitleStyle(this, face, gridIconSize(), &style) || !self)
        return;
    m_editor->setTitleStyle(m_slot, style);
    refreshFromModel();
}

void FaceEditor::chooseIcon()
{
    KeyRenderInfo face;
    if (!copyFace(&face))
        return;
    const QPointer<FaceEditor> self(this);
    QImage image;
    if (!FormDialogs::chooseIcon(this, face, &image) || !self || image.isNull())
        return;
    m_editor->setIcon(m_slot, image);
    refreshFromModel();
}

void FaceEditor::useDefaultIcon()
{
    m_editor->clearIcon(m_slot);
    refreshFromModel();
    // The button goes grey: the keyboard stays in the face controls.
    if (!m_defaultIcon->isEnabled())
        m_chooseIcon->setFocus();
}
