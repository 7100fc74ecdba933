#pragma once

#include <QWidget>

class KeyItem;
class QLabel;

// The panel the main window shows instead of a property form while an action
// type is picked in the palette: a large picture and what the action does.
class FunctionDescription : public QWidget
{
    Q_OBJECT
public:
    // Types 0..5 are described; anything else (7 stands for "none") shows
    // the drag hint.
    FunctionDescription(int actionType, QWidget* parent);
    ~FunctionDescription() override;

    int actionType() const;
    // Translated heading, "\n", then the body.
    static QString descriptionText(int actionType);

public slots:
    void updateContent(const KeyItem* item);

private:
    void buildLabels();
    void showContent();

    int m_actionType;
    QLabel* m_image = nullptr;
    QLabel* m_title = nullptr;
    QLabel* m_text = nullptr;
};
