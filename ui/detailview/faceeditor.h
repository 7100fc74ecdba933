#pragma once

#include <QSize>
#include <QWidget>

class KeyItem;
class KeyItemEditor;
struct KeyRenderInfo;
class QCheckBox;
class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

// The face controls of one feature slot in a property form: the title
// (line breaks allowed; the key wraps and shortens what does not fit) with
// its "Style…" button, and the icon with "Choose icon…" and "Use default
// icon", and what the key shows live ("Live content": processor, memory,
// network, clock or date, with an optional graph), which the title and icon
// stand in for while a figure is not known. Every change goes through the
// form's KeyItemEditor at once.
class FaceEditor : public QWidget
{
    Q_OBJECT
public:
    // titleLabel: the caption of the title field, which names it.
    FaceEditor(KeyItemEditor* editor, int slot, const QString& titleLabel, QWidget* parent);

    QPlainTextEdit* titleField() const { return m_title; }
    QPushButton* styleButton() const { return m_style; }
    QLabel* iconPreview() const { return m_icon; }
    QPushButton* chooseIconButton() const { return m_chooseIcon; }
    QPushButton* defaultIconButton() const { return m_defaultIcon; }
    QComboBox* liveContentBox() const { return m_live; }
    QCheckBox* liveGraphBox() const { return m_graph; }

    // Shows the slot's face of item; what the user is typing stays as long
    // as it is what the item holds.
    void refresh(const KeyItem& item);

private:
    bool copyFace(KeyRenderInfo* face) const;
    void chooseStyle();
    void chooseIcon();
    void useDefaultIcon();
    void applyLiveContent();
    void refreshFromModel();
    QSize gridIconSize() const;
    static QPixmap iconTile(const KeyItem& item, int slot);

    KeyItemEditor* m_editor;
    int m_slot;
    QPlainTextEdit* m_title = nullptr;
    QPushButton* m_style = nullptr;
    QLabel* m_icon = nullptr;
    QPushButton* m_chooseIcon = nullptr;
    QPushButton* m_defaultIcon = nullptr;
    QComboBox* m_live = nullptr;
    QCheckBox* m_graph = nullptr;
};
