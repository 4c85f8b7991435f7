// How pictures are found and decoded: every shipped file is found by its name and type, the
// pixels of one file are decoded once and shared by every view showing it, and nothing beyond
// the picture's own format is loaded to read it.

#include "Picture.h"

#include <QDirIterator>
#include <QFile>
#include <QTest>

namespace {

struct Shipped {
    QString name;
    QString type;
    bool sharp = false; // the @2x twin
};

std::vector<Shipped> ShippedFiles() {
    std::vector<Shipped> files;
    const QString folder = QStringLiteral(":/pictures/");
    QDirIterator it(folder, QDir::Files);
    while (it.hasNext()) {
        const QString file = it.next().mid(folder.size());
        const qsizetype dot = file.lastIndexOf(QLatin1Char('.'));
        if (dot <= 0) continue;
        Shipped s{file.left(dot), file.mid(dot + 1)};
        s.sharp = s.name.endsWith(QLatin1String("@2x"));
        if (s.sharp) s.name.chop(3);
        files.push_back(s);
    }
    return files;
}

// The image plugins mapped into this process.
QStringList ImagePluginsLoaded() {
    QFile maps(QStringLiteral("/proc/self/maps"));
    QStringList plugins;
    if (!maps.open(QIODevice::ReadOnly)) return plugins;
    for (const QByteArray& line : maps.readAll().split('\n'))
        if (line.contains("/imageformats/"))
            plugins << QString::fromLocal8Bit(line.mid(line.lastIndexOf(' ') + 1));
    plugins.removeDuplicates();
    return plugins;
}

} // namespace

class TestPicture : public QObject {
    Q_OBJECT
private slots:
    // Runs first, before anything else in this process has read a picture.
    void pngPicturesLoadNoImagePlugin() {
        if (!QFile::exists(QStringLiteral("/proc/self/maps"))) QSKIP("no /proc here");
        if (!QFile::exists(QStringLiteral(":/pictures/mainpage_bg.png"))) QSKIP("artwork not built in");
        QVERIFY(ImagePluginsLoaded().isEmpty());
        for (const char* name : {"mainpage_bg", "logo_main", "but_question", "long bar"}) {
            const Picture picture = Picture::Lookup(QString::fromLatin1(name), QStringLiteral("png"));
            QVERIFY2(!picture.pixmap(1.0).isNull(), name);
            QVERIFY(!picture.naturalSize().isEmpty());
        }
        QVERIFY2(ImagePluginsLoaded().isEmpty(), qPrintable(ImagePluginsLoaded().join(QLatin1Char(' '))));
    }

    void everyShippedFileIsFoundByNameAndType_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::addColumn<bool>("sharp");
        for (const Shipped& s : ShippedFiles())
            QTest::addRow("%s%s.%s", qPrintable(s.name), s.sharp ? "@2x" : "", qPrintable(s.type))
                << s.name << s.type << s.sharp;
        if (ShippedFiles().empty()) QSKIP("artwork not built in");
    }
    void everyShippedFileIsFoundByNameAndType() {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(bool, sharp);
        const Picture picture = Picture::Lookup(name, type);
        QVERIFY(!picture.isNull());
        const QPixmap& pixels = picture.pixmap(sharp ? 2.0 : 1.0);
        QVERIFY(!pixels.isNull());
        QCOMPARE(pixels.devicePixelRatio(), sharp ? 2.0 : 1.0);
        // Whichever file is drawn, it covers the picture's natural size in points.
        QCOMPARE(pixels.deviceIndependentSize(), picture.naturalSize());
        // The same name under another type is another, missing, resource.
        QVERIFY(Picture::Lookup(name,
                                type == QLatin1String("png") ? QStringLiteral("jpg") : QStringLiteral("png"))
                    .isNull());
    }

    void viewsShowingOneFileShareItsPixels_data() {
        QTest::addColumn<qreal>("ratio");
        QTest::newRow("1x") << 1.0;
        QTest::newRow("2x") << 2.0;
    }
    void viewsShowingOneFileShareItsPixels() {
        QFETCH(qreal, ratio);
        if (!QFile::exists(QStringLiteral(":/pictures/scenario_bg.png"))) QSKIP("artwork not built in");
        const Picture a = Picture::Lookup(QStringLiteral("scenario_bg"), QStringLiteral("png"));
        Picture b = Picture::Lookup(QStringLiteral("scenario_bg"), QStringLiteral("png"));
        b.setSize(QSizeF(10, 10)); // a view's size does not make a copy of the pixels either
        QCOMPARE(a.pixmap(ratio).cacheKey(), b.pixmap(ratio).cacheKey());
        QCOMPARE(a.pixmap(ratio).devicePixelRatio(), ratio);
        const Picture other = Picture::Lookup(QStringLiteral("mainpage_bg"), QStringLiteral("png"));
        QVERIFY(other.pixmap(ratio).cacheKey() != a.pixmap(ratio).cacheKey());
    }

    void theOneJpegPictureLoads() {
        if (!QFile::exists(QStringLiteral(":/pictures/Pim_confirmation.jpg"))) QSKIP("artwork not built in");
        const Picture picture = Picture::Lookup(QStringLiteral("Pim_confirmation"), QStringLiteral("jpg"));
        QCOMPARE(picture.pixmap(1.0).deviceIndependentSize(), QSizeF(1024, 768));
        QCOMPARE(picture.naturalSize(), QSizeF(1024, 768));
    }

    void nullAndMissingPicturesHaveNoPixels() {
        QVERIFY(Picture().pixmap(1.0).isNull());
        QVERIFY(Picture::Lookup(QString(), QStringLiteral("png")).pixmap(2.0).isNull());
        const Picture missing = Picture::Lookup(QStringLiteral("no such picture"), QStringLiteral("png"));
        QVERIFY(missing.isNull());
        QVERIFY(missing.pixmap(1.0).isNull());
        QVERIFY(missing.naturalSize().isEmpty());
    }
};

QTEST_MAIN(TestPicture)
#include "tst_picture.moc"
