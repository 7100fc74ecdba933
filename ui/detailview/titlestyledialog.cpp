#include "titlestyledialog.h"

#include "dialogbuttons.h"
#include "keybuttonimage.h"
#include "keyfacerenderer.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int PositionIconSide = 18;

QString plain(const QString& label)
{
    return QString(label).remove(QLatin1Char('&'));
}

// A control named after the label in front of it.
void addRow(QFormLayout* form, const QString& label, QWidget* control)
{
    auto* caption = new QLabel(label, control->parentWidget());
    caption->setBuddy(control);
    control->setAccessibleName(plain(label));
    form->addRow(caption, control);
}

QCheckBox* namedCheckBox(const QString& text, QWidget* parent)
{
    auto* box = new QCheckBox(text, parent);
    box->setAccessibleName(plain(text));
    return box;
}

} // namespace

TitleStyleDialog::TitleStyleDialog(const KeyRenderInfo& face, const QSize& gridIconSize, QWidget* parent)
    : QDialog(parent), m_gridIconSize(gridIconSize), m_style(TitleStyle::of(face))
{
    m_face.assignFrom(face);
    setWindowTitle(tr("Title Style"));
    KeyFaceRenderer::ensureFontsLoaded();

    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    layout->addLayout(form);

    m_family = new QFontComboBox(this);
    m_family->setEditable(false);
    addRow(form, tr("&Font:"), m_family);
    m_size = new QComboBox(this);
    for (int points = TitleStyle::MinPointSize; points <= TitleStyle::MaxPointSize; ++points)
        m_size->addItem(tr("%1 pt").arg(points), points);
    addRow(form, tr("&Size:"), m_size);

    auto* looks = new QWidget(this);
    auto* looksRow = new QHBoxLayout(looks);
    looksRow->setContentsMargins(0, 0, 0, 0);
    m_bold = namedCheckBox(tr("&Bold"), looks);
    m_italic = namedCheckBox(tr("&Italic"), looks);
    m_underline = namedCheckBox(tr("&Underline"), looks);
    looksRow->addWidget(m_bold);
    looksRow->addWidget(m_italic);
    looksRow->addWidget(m_underline);
    looksRow->addStretch(1);
    form->addRow(QString(), looks);

    m_color = new QPushButton(tr("&Color…"), this);
    m_color->setAccessibleName(plain(m_color->text()));
    auto* colorRow = new QHBoxLayout;
    colorRow->addWidget(m_color);
    colorRow->addStretch(1);
    form->addRow(tr("Color:"), colorRow);
    form->addRow(tr("Position:"), createPositionGrid());

    auto* previews = new QHBoxLayout;
    m_facePreview = new QLabel(this);
    m_facePreview->setFixedSize(KeyFaceRenderer::FaceSize, KeyFaceRenderer::FaceSize);
    m_facePreview->setToolTip(tr("The key on the keypad"));
    m_facePreview->setAccessibleName(m_facePreview->toolTip());
    m_gridPreview = new QLabel(this);
    m_gridPreview->setFixedSize(gridIconSize.isValid() ? gridIconSize : QSize(1, 1));
    m_gridPreview->setToolTip(tr("The key in the editor's grid"));
    m_gridPreview->setAccessibleName(m_gridPreview->toolTip());
    previews->addWidget(m_facePreview, 0, Qt::AlignBottom);
    previews->addWidget(m_gridPreview, 0, Qt::AlignBottom);
    previews->addStretch(1);
    form->addRow(tr("Preview:"), previews);

    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Reset, this);
    DialogButtons::useOwnTexts(buttons);
    m_reset = buttons->button(QDialogButtonBox::Reset);
    for (QAbstractButton* button : buttons->buttons())
        button->setAccessibleName(plain(button->text()));
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_reset, &QPushButton::clicked, this, [this] { setStyle(TitleStyle::resetStyle()); });

    connect(m_family, &QFontComboBox::currentFontChanged, this, [this](const QFont& font) {
        m_style.setFamily(font.family());
        updatePreview();
    });
    connect(m_size, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        m_style.setPointSize(m_size->currentData().toInt());
        updatePreview();
    });
    connect(m_bold, &QCheckBox::toggled, this, [this](bool on) {
        m_style.font.setBold(on);
        updatePreview();
    });
    connect(m_italic, &QCheckBox::toggled, this, [this](bool on) {
        m_style.font.setItalic(on);
        updatePreview();
    });
    connect(m_underline, &QCheckBox::toggled, this, [this](bool on) {
        m_style.font.setUnderline(on);
        updatePreview();
    });
    connect(m_color, &QPushButton::clicked, this, &TitleStyleDialog::chooseColor);
    connect(m_positions, &QButtonGroup::idClicked, this, [this](int id) {
        m_style.setPosition(id / TitleStyle::Columns, id % TitleStyle::Columns);
        updatePreview();
    });
    showStyle();
    m_family->setFocus();
}

QWidget* TitleStyleDialog::createPositionGrid()
{
    auto* grid = new QWidget(this);
    grid->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* cells = new QGridLayout(grid);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->setSpacing(2);
    m_positions = new QButtonGroup(this);
    m_positions->setExclusive(true);
    for (int row = 0; row < TitleStyle::Rows; ++row) {
        for (int column = 0; column < TitleStyle::Columns; ++column) {
            auto* button = new QToolButton(grid);
            button->setCheckable(true);
            button->setIcon(positionIcon(row, column));
            button->setIconSize(QSize(PositionIconSide, PositionIconSide));
            button->setToolTip(positionName(row, column));
            button->setAccessibleName(button->toolTip());
            button->setFocusPolicy(Qt::StrongFocus);
            m_positions->addButton(button, row * TitleStyle::Columns + column);
            cells->addWidget(button, row, column);
        }
    }
    return grid;
}

QString TitleStyleDialog::positionName(int row, int column)
{
    static const char* const names[TitleStyle::Rows][TitleStyle::Columns] = {
        {QT_TR_NOOP("Top left"), QT_TR_NOOP("Top center"), QT_TR_NOOP("Top right")},
        {QT_TR_NOOP("Middle left"), QT_TR_NOOP("Middle center"), QT_TR_NOOP("Middle right")},
        {QT_TR_NOOP("Bottom left"), QT_TR_NOOP("Bottom center"), QT_TR_NOOP("Bottom right")},
    };
    if (row < 0 || row >= TitleStyle::Rows || column < 0 || column >= TitleStyle::Columns)
        return QString();
    return tr(names[row][column]);
}

QAbstractButton* TitleStyleDialog::positionButton(int row, int column) const
{
    return m_positions->button(row * TitleStyle::Columns + column);
}

// A key outline with a bar where the title goes.
QIcon TitleStyleDialog::positionIcon(int row, int column)
{
    QPixmap icon(PositionIconSide, PositionIconSide);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setPen(QColor(160, 170, 186));
    painter.drawRect(QRect(0, 0, PositionIconSide - 1, PositionIconSide - 1));
    constexpr int bar = 8;
    constexpr int thick = 3;
    const int x = 3 + column * (PositionIconSide - 6 - bar) / 2;
    const int y = 3 + row * (PositionIconSide - 6 - thick) / 2;
    painter.fillRect(QRect(x, y, bar, thick), QColor(236, 239, 244));
    painter.end();
    return QIcon(icon);
}

QIcon TitleStyleDialog::colorIcon(const QColor& color)
{
    QPixmap swatch(16, 16);
    swatch.fill(Qt::transparent);
    QPainter painter(&swatch);
    // A checkerboard behind shows how see-through the colour is.
    painter.fillRect(QRect(0, 0, 8, 8), Qt::lightGray);
    painter.fillRect(QRect(8, 8, 8, 8), Qt::lightGray);
    painter.fillRect(QRect(8, 0, 8, 8), Qt::darkGray);
    painter.fillRect(QRect(0, 8, 8, 8), Qt::darkGray);
    painter.fillRect(swatch.rect(), color);
    painter.setPen(Qt::black);
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    return QIcon(swatch);
}

void TitleStyleDialog::setStyle(const TitleStyle& style)
{
    m_style = style;
    showStyle();
}

void TitleStyleDialog::setColor(const QColor& color)
{
    if (!color.isValid())
        return;
    m_style.color = color;
    m_color->setIcon(colorIcon(color));
    updatePreview();
}

void TitleStyleDialog::chooseColor()
{
    const QPointer<TitleStyleDialog> self(this);
    const QColor color = QColorDialog::getColor(m_style.color, this, tr("Title Color"), QColorDialog::ShowAlphaChannel);
    if (self)
        setColor(color);
}

// The controls follow the style without writing it back.
void TitleStyleDialog::showStyle()
{
    const TitleStyle style = m_style;
    for (QObject* control :
         {static_cast<QObject*>(m_family), static_cast<QObject*>(m_size), static_cast<QObject*>(m_bold),
          static_cast<QObject*>(m_italic), static_cast<QObject*>(m_underline)})
        control->blockSignals(true);
    m_family->setCurrentFont(QFont(style.shownFamily()));
    m_size->setCurrentIndex(m_size->findData(style.pointSize()));
    m_bold->setChecked(style.font.bold());
    m_italic->setChecked(style.font.italic());
    m_underline->setChecked(style.font.underline());
    for (QObject* control :
         {static_cast<QObject*>(m_family), static_cast<QObject*>(m_size), static_cast<QObject*>(m_bold),
          static_cast<QObject*>(m_italic), static_cast<QObject*>(m_underline)})
        control->blockSignals(false);
    positionButton(style.row(), style.column())->setChecked(true);
    m_color->setIcon(colorIcon(style.color));
    updatePreview();
}

QImage TitleStyleDialog::previewFace() const
{
    KeyRenderInfo face;
    face.assignFrom(m_face);
    m_style.applyTo(face);
    return KeyFaceRenderer::render(face);
}

void TitleStyleDialog::updatePreview()
{
    const QPixmap face = QPixmap::fromImage(previewFace());
    m_facePreview->setPixmap(face);
    if (m_gridIconSize.isValid())
        m_gridPreview->setPixmap(KeyButtonImage::compose(face, m_gridIconSize));
}
