#pragma once

#include <QObject>

class QDateTimeEdit;

// One click into a section of a date or time field selects that section, so the digits typed
// next replace it, as in any desktop date field. Qt's own field only puts the caret there, and a
// section that is full takes no more digits, so typing after a single click changed nothing.
class SectionClick : public QObject {
    Q_OBJECT
public:
    // Watches the field's clicks for as long as the field lives.
    static void Install(QDateTimeEdit* field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit SectionClick(QDateTimeEdit* field);

    QDateTimeEdit* m_field;
};
