#pragma once

#include <QAccessibleObject>

// What assistive technologies see of the application: its windows, each once. A window shown
// scaled inside another is part of that one (Qt's own list would name it a second time).
class ApplicationAccessible : public QAccessibleObject {
public:
    explicit ApplicationAccessible(QObject* application);

    QAccessibleInterface* parent() const override { return nullptr; }
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text t) const override;
    QAccessible::Role role() const override { return QAccessible::Application; }
    QAccessible::State state() const override { return {}; }

private:
    static QList<QWidget*> Windows();
};
