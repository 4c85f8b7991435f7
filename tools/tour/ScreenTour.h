#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

class AppHarness;
class Button;
class QDateTimeEdit;
class QWidget;

// A walk through every screen and page of the app in its real window, clicking where a user
// clicks, with one screenshot per stop.
class ScreenTour {
public:
    ScreenTour(AppHarness& app, const QDir& folder);

    // Walks the whole tour; false (with the reason in error()) when a stop could not be reached.
    bool run();
    const QStringList& written() const { return m_written; }
    const QString& error() const { return m_error; }

private:
    bool mainMenu();
    bool scenario();
    bool editors();
    bool alarm();
    // Opens a picker's editor, gives the picker the tour's fixed moment, and sets it.
    void setValue(Button* open, QDateTimeEdit* picker, Button* set);

    // Tabs to `control` and writes focus-ring-name.png: the ring as the keyboard shows it.
    bool ring(const QString& name, QWidget* control);
    // Parks the pointer on bare background (so no button is lit) and writes NN-name.png.
    bool stop(const QString& name);
    bool save(const QString& file);
    bool fail(const QString& why);

    AppHarness& m_app;
    QDir m_folder;
    QStringList m_written;
    int m_rings = 0; // focus-ring shots among those written
    QString m_error;
};
