#pragma once

#include <QDialog>

class PreferencePage;
class QListWidget;
class QPushButton;
class QStackedWidget;

// The preference dialog: the pages' titles in a list on the left, the chosen
// page on the right. It closes (Esc, its Close button, the window's close
// button) only when every page agrees; otherwise it says why and stays.
class PreferenceDialog : public QDialog
{
    Q_OBJECT
public:
    explicit PreferenceDialog(QWidget* parent = nullptr);

    // Appends a page; the dialog takes it over.
    void addPage(PreferencePage* page);
    int pageCount() const;
    PreferencePage* page(int index) const;
    PreferencePage* currentPage() const;
    void setCurrentPage(int index);
    // The first page of that type, or null.
    template <typename Page>
    Page* findPage() const
    {
        for (int i = 0; i < pageCount(); ++i) {
            if (auto* found = qobject_cast<Page*>(page(i)))
                return found;
        }
        return nullptr;
    }

    // False while a page must stay open; why then holds its reason.
    bool canClose(QString& why) const;

    QListWidget* pageList() const;
    QPushButton* closeButton() const;

public slots:
    // Every way of closing ends here.
    void done(int result) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QListWidget* m_list = nullptr;
    QStackedWidget* m_stack = nullptr;
    QPushButton* m_close = nullptr;
    bool m_activeWhenParentHid = false;
};
