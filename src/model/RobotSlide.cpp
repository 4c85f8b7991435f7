#include "RobotSlide.h"

#include <QTimer>

RobotSlide::RobotSlide(QObject* parent) : QObject(parent), timer(new QTimer(this)) {
    // Qt keeps firing timers while a mouse button is held, so the slide goes on under a press.
    timer->setTimerType(Qt::PreciseTimer);
    timer->setInterval(kTickMs);
    connect(timer, &QTimer::timeout, this, &RobotSlide::RobotAction);
    timer->start();
}

void RobotSlide::RobotAction() {
    // A tick that was already queued when the robot arrived finds nothing left to do.
    if (hasArrived()) return;
    float next = y - kStep;
    if (!(next > kRestY)) {
        timer->stop();
        // The menu comes alive within the arriving tick, before the robot takes its last step.
        emit arrived();
        next = kRestY;
    }
    y = next;
    emit moved(y);
}
