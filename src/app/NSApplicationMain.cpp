#include "NSApplicationMain.h"

#include "Frame_Control.h"
#include "ui_MainWindow.h"

#include <QApplication>

std::unique_ptr<QWidget> LoadMainWindow() {
    auto window = std::make_unique<QWidget>();
    Ui::MainWindow ui;
    ui.setupUi(window.get());
    window->setFixedSize(1024, 768);
    return window;
}

Frame_Control* RootView(QWidget* window) {
    return window ? window->findChild<Frame_Control*>(QStringLiteral("frmControl")) : nullptr;
}

int NSApplicationMain(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("robot-companion"));
    QApplication::setApplicationDisplayName(QStringLiteral("Robot Companion"));
    std::unique_ptr<QWidget> window = LoadMainWindow();
    window->show();
    return QApplication::exec();
}
