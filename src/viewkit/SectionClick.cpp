#include "SectionClick.h"

#include <QDateTimeEdit>
#include <QLineEdit>
#include <QMouseEvent>

SectionClick::SectionClick(QDateTimeEdit* field) : QObject(field), m_field(field) {}

void SectionClick::Install(QDateTimeEdit* field) {
    // The text and its caret live in the field's own line edit, which takes the clicks.
    QLineEdit* text = field ? field->findChild<QLineEdit*>() : nullptr;
    if (text) text->installEventFilter(new SectionClick(field));
}

bool SectionClick::eventFilter(QObject* watched, QEvent* event) {
    // On release: by then the field has moved its current section to the caret. A drag that
    // selected text keeps its selection.
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        auto* text = static_cast<QLineEdit*>(watched);
        if (!text->hasSelectedText()) m_field->setSelectedSection(m_field->currentSection());
    }
    return false;
}
