#include "layoutpage.h"

#include "buttonlayoutconfig.h"
#include "keypadtable.h"
#include "layouttext.h"
#include "logging.h"
#include "preferencelook.h"
#include "widgetlook.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int KeyCounts[LayoutPage::SizeCount] = {6, 15, 32};
constexpr QSize PictureSize(120, 80);

} // namespace

LayoutPage::LayoutPage(const PreferenceContext& context, QWidget* parent) : PreferencePage(parent), m_context(context)
{
    setObjectName(QStringLiteral("LayoutPage"));
    QVBoxLayout* layout = PreferenceLook::pageLayout(this, title());
    layout->addWidget(PreferenceLook::note(tr("Choose the keypad you use and how you hold it. The editor and the "
                                              "keypad change at once; every layout keeps its own keys."),
                                           this));

    layout->addWidget(PreferenceLook::section(tr("Keypad size"), this));
    m_sizes = new QButtonGroup(this);
    m_sizes->setExclusive(true);
    auto* sizes = new QHBoxLayout;
    sizes->setSpacing(12);
    for (int keys : KeyCounts) {
        auto* button = new QToolButton(this);
        button->setObjectName(QStringLiteral("LayoutSizeButton"));
        button->setText(LayoutText::keys(keys));
        button->setAccessibleName(button->text());
        button->setIcon(QIcon(WidgetLook::imagePath(QStringLiteral("icn_layout%1").arg(keys))));
        button->setIconSize(PictureSize);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setCheckable(true);
        button->setFocusPolicy(Qt::StrongFocus);
        m_sizes->addButton(button, keys);
        sizes->addWidget(button);
    }
    sizes->addStretch(1);
    layout->addLayout(sizes);

    layout->addSpacing(6);
    layout->addWidget(PreferenceLook::section(tr("Orientation"), this));
    m_horizontal = new QRadioButton(tr("Horizontal"), this);
    m_vertical = new QRadioButton(tr("Vertical"), this);
    m_orientations = new QButtonGroup(this);
    for (QRadioButton* button : {m_horizontal, m_vertical}) {
        button->setAccessibleName(button->text());
        m_orientations->addButton(button);
        layout->addWidget(button);
    }
    layout->addStretch(1);

    connect(m_sizes, &QButtonGroup::idClicked, this, &LayoutPage::choose);
    connect(m_orientations, &QButtonGroup::idClicked, this, &LayoutPage::choose);
    if (m_context.layouts) {
        connect(m_context.layouts, &ButtonLayoutConfig::buttonLayoutChanged, this,
                [this](KeyLayout value) { showLayout(value); });
        showLayout(m_context.layouts->currentLayout());
    }
}

QString LayoutPage::title() const
{
    return tr("Layout");
}

int LayoutPage::layoutFor(int keyCount, bool vertical)
{
    for (int layout = 0; layout < KeypadTable::LayoutCount; ++layout) {
        if (KeypadTable::keyCount(layout) == keyCount && LayoutText::isVertical(layout) == vertical)
            return layout;
    }
    return -1;
}

void LayoutPage::showLayout(int layout)
{
    const QSignalBlocker sizes(m_sizes);
    const QSignalBlocker orientations(m_orientations);
    if (QAbstractButton* size = m_sizes->button(KeypadTable::keyCount(layout)))
        size->setChecked(true);
    (LayoutText::isVertical(layout) ? m_vertical : m_horizontal)->setChecked(true);
}

void LayoutPage::choose()
{
    const int layout = layoutFor(m_sizes->checkedId(), m_vertical->isChecked());
    if (!m_context.layouts || layout < 0 || layout == m_context.layouts->currentLayout())
        return;
    LOG_MSG(QStringLiteral("layout chosen: %1").arg(ButtonLayoutConfig::layoutName(layout)));
    m_context.layouts->changeLayout(layout);
}

QToolButton* LayoutPage::sizeButton(int keyCount) const
{
    return qobject_cast<QToolButton*>(m_sizes->button(keyCount));
}

QRadioButton* LayoutPage::horizontalButton() const
{
    return m_horizontal;
}

QRadioButton* LayoutPage::verticalButton() const
{
    return m_vertical;
}
