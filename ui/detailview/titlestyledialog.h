#pragma once

#include "keyrenderinfo.h"
#include "titlestyle.h"

#include <QDialog>
#include <QSize>

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QFontComboBox;
class QLabel;
class QPushButton;

// The style of a key's title: family (the installed fonts, the bundled title
// font among them), size, bold, italic, underline, colour with alpha, and one
// of nine positions. A live preview shows the key as the keypad draws it
// (72 x 72) and as the grid shows it; "Reset" goes back to the reset values.
// The choice is applied by the caller on OK.
class TitleStyleDialog : public QDialog
{
    Q_OBJECT
public:
    // face: the key's face (title, icon) the style is for; gridIconSize: the
    // size the editor's grid shows keys at.
    TitleStyleDialog(const KeyRenderInfo& face, const QSize& gridIconSize, QWidget* parent = nullptr);

    TitleStyle style() const { return m_style; }
    void setStyle(const TitleStyle& style);
    void setColor(const QColor& color);
    // The face as the preview shows it, at the keypad's size.
    QImage previewFace() const;

    QFontComboBox* familyBox() const { return m_family; }
    // Point sizes, each item's data its size.
    QComboBox* sizeBox() const { return m_size; }
    QCheckBox* boldBox() const { return m_bold; }
    QCheckBox* italicBox() const { return m_italic; }
    QCheckBox* underlineBox() const { return m_underline; }
    QAbstractButton* positionButton(int row, int column) const;
    QPushButton* resetButton() const { return m_reset; }
    QLabel* gridPreview() const { return m_gridPreview; }

    // The accessible names of the nine positions, row by row.
    static QString positionName(int row, int column);

private:
    QWidget* createPositionGrid();
    void chooseColor();
    void showStyle();
    void updatePreview();
    static QIcon positionIcon(int row, int column);
    static QIcon colorIcon(const QColor& color);

    KeyRenderInfo m_face;
    QSize m_gridIconSize;
    TitleStyle m_style;
    QFontComboBox* m_family = nullptr;
    QComboBox* m_size = nullptr;
    QCheckBox* m_bold = nullptr;
    QCheckBox* m_italic = nullptr;
    QCheckBox* m_underline = nullptr;
    QPushButton* m_color = nullptr;
    QButtonGroup* m_positions = nullptr;
    QPushButton* m_reset = nullptr;
    QLabel* m_facePreview = nullptr;
    QLabel* m_gridPreview = nullptr;
};
