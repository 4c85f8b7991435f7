#pragma once

#include <QObject>

// Which of the three robot configurations the user says was built: 0, 1 or 2, the first until
// another is chosen. `changed` follows every choice, the same one again included.
class LazerConfiguration : public QObject {
    Q_OBJECT
public:
    static constexpr qint32 kCount = 3;

    using QObject::QObject;

    // Anything outside 0 to 2 is ignored.
    void Choose(qint32 type);

    qint32 LazerType() const { return m_lazerType; }

signals:
    void changed();

private:
    qint32 m_lazerType = 0;
};
