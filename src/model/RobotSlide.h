#pragma once

#include <QObject>

class QTimer;

// The robot of the main menu slides up from below the window's bottom edge, a few points every
// hundredth of a second, until it rests where the menu can show beside it. It slides once per
// run: nothing starts it again.
class RobotSlide : public QObject {
    Q_OBJECT
public:
    static constexpr float kStartY = 768.0f;
    static constexpr float kRestY = 263.0f;
    static constexpr float kStep = 5.0f;
    static constexpr int kTickMs = 10;

    // The slide starts at once.
    explicit RobotSlide(QObject* parent = nullptr);

    // One step of the slide, on every tick of the timer.
    void RobotAction();
    bool hasArrived() const { return y == kRestY; }

    float y = kStartY;
    QTimer* timer = nullptr; // stopped once the robot has arrived

signals:
    // Sent during the arriving tick, before that tick's move.
    void arrived();
    void moved(float y);
};
