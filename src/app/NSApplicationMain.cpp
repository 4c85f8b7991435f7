#include "NSApplicationMain.h"

#include "Frame_Control.h"
#include "ScreenFit.h"
#include "ViewKit.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QIcon>

std::unique_ptr<QWidget> LoadMainWindow() {
    // Before any view exists: a reader asks for each one as it is made.
    ViewKit::Install();
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
    // The desktop entry names the installed icon; run from the build tree, the mascot stands in.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.robotcompanion.robotcompanion"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("org.robotcompanion.robotcompanion"),
                                                 QIcon(QStringLiteral(":/pictures/logo_main.png"))));
    std::unique_ptr<QWidget> window = LoadMainWindow();
    ScreenFit fit(window.get());
    fit.show();
    return QApplication::exec();
}
