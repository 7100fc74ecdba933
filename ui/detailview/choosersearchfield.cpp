#include "choosersearchfield.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>

ChooserSearchField::ChooserSearchField(QWidget* parent) : QLineEdit(parent)
{
    setClearButtonEnabled(true);
}

QRegularExpression ChooserSearchField::pattern(const QString& text)
{
    QString lookaheads;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        lookaheads += QStringLiteral("(?=.*%1)").arg(QRegularExpression::escape(word));
    return QRegularExpression(lookaheads, QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::DotMatchesEverythingOption |
                                              QRegularExpression::UseUnicodePropertiesOption);
}

void ChooserSearchField::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (m_view) {
            QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->text());
            QCoreApplication::sendEvent(m_view, &copy);
            return;
        }
        break;
    default:
        break;
    }
    QLineEdit::keyPressEvent(event);
}
