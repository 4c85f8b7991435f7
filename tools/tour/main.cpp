#include "AppHarness.h"
#include "ScreenTour.h"

#include <QApplication>

#include <cstdio>

// screen-tour <folder>: writes the tour's PNGs into the folder, replacing the old ones.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QString folderName = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("screens");
    QDir folder(folderName);
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot make %s\n", qPrintable(folderName));
        return 1;
    }
    for (const QString& old : folder.entryList({QStringLiteral("[0-9][0-9]-*.png")}, QDir::Files))
        folder.remove(old);

    AppHarness app;
    ScreenTour tour(app, folder);
    const bool ok = tour.run();
    for (const QString& file : tour.written()) std::printf("%s\n", qPrintable(folder.filePath(file)));
    if (!ok) {
        std::fprintf(stderr, "tour stopped: %s\n", qPrintable(tour.error()));
        return 1;
    }
    return 0;
}
