#pragma once

#include <QPointer>
#include <QWidget>

class FunctionDescription;
class KeyItem;
class KeyItemForm;
class KeyItemModel;
class QScrollArea;
class QVBoxLayout;

// The part of the right column below the action palette. It shows one panel
// at a time: the description of an action type (the palette's selection, or
// the drag hint while nothing is chosen), or the property form of the
// selected key.
class FormArea : public QWidget
{
    Q_OBJECT
public:
    // The type shown while no description is up.
    static constexpr int NoDescription = 7;

    explicit FormArea(QWidget* parent = nullptr);

    // Shows the description of an action type; the drag hint for any type
    // outside the six. Showing the type already shown does nothing.
    void showFunctionDescription(int actionType);
    int shownActionType() const;
    FunctionDescription* functionDescription() const;

    // The form of the key at a position of the page shown; an empty key and
    // the back key (which has nothing to set) show the drag hint. Showing the
    // key already shown only reads it again.
    void showKeyForm(int keyIdx);
    KeyItemForm* keyForm() const;
    // Gives the keyboard to the first control of the form shown; false when
    // no form with controls is shown.
    bool focusFirstControl();
    // Makes the form for an item's type; null for the back key and no type.
    static KeyItemForm* createForm(KeyItemModel* model, int keyIdx, QWidget* parent);

public slots:
    // Clears the area, whichever panel it shows.
    void closeFunctionDescription();

private:
    void closeKeyForm();
    // The key changed elsewhere: the form follows it, or closes when it went.
    void onModelContentChanged();
    KeyItemModel* model();

    QVBoxLayout* m_layout = nullptr;
    FunctionDescription* m_description = nullptr;
    int m_shownType = NoDescription;
    QScrollArea* m_scroll = nullptr;
    KeyItemForm* m_form = nullptr;
    QPointer<KeyItemModel> m_model;
};
