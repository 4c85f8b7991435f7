// The shipped pictures against the manifest: every listed picture is embedded at its exact size
// and type, with a twin at double size for high-density screens, drawn from a vector source of
// that size, and nothing else is shipped. No Q_INIT_RESOURCE anywhere: linking the app's library
// alone must bring the pictures in.

#include "Picture.h"

#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

namespace {

struct Row {
    QString name, type;
    QSize size; // empty when the line is malformed
};

// The manifest's rows: name, type, width, height, then free text.
QList<Row> Manifest() {
    QFile file(QStringLiteral(ROBOT_SOURCE_DIR "/resources/pictures.tsv"));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QList<Row> rows;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')).mid(1);
    for (const QString& line : lines) {
        if (line.trimmed().isEmpty()) continue;
        const QStringList cells = line.split(QLatin1Char('\t')) + QStringList(4, QString());
        rows.append({cells[0], cells[1], QSize(cells[2].toInt(), cells[3].toInt())});
    }
    return rows;
}

// The format read from the file's bytes (not its name), the size its header declares, and
// whether the whole image decodes to that size.
void CheckShipped(const QString& path, const QString& type, QSize size) {
    QVERIFY2(QFile::exists(path), qPrintable(path + QStringLiteral(" is not in the resources")));
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), type == QLatin1String("jpg") ? QByteArray("jpeg") : type.toLatin1());
    QCOMPARE(reader.size(), size);
    QCOMPARE(reader.read().size(), size);
}

} // namespace

class TestPictures : public QObject {
    Q_OBJECT
private slots:
    void everyRowShipsAtItsSize_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QSize>("size");
        const QList<Row> rows = Manifest();
        QVERIFY2(!rows.isEmpty(), "the manifest lists no pictures");
        for (const Row& row : rows) QTest::newRow(qPrintable(row.name)) << row.name << row.type << row.size;
    }
    void everyRowShipsAtItsSize() {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(QSize, size);
        QVERIFY2(!size.isEmpty(), "malformed manifest line");
        QVERIFY2(!name.contains(QLatin1Char('@')) && !name.contains(QLatin1Char('/')), "clashes with a path");
        QVERIFY(type == QLatin1String("png") || type == QLatin1String("jpg"));
        CheckShipped(QStringLiteral(":/pictures/%1.%2").arg(name, type), type, size);
        CheckShipped(QStringLiteral(":/pictures/%1@2x.%2").arg(name, type), type, size * 2);

        // The renderer stretches its source to the manifest's size: the source must be that size.
        QFile svg(
            QStringLiteral(ROBOT_SOURCE_DIR "/resources/svg/%1.svg").arg(QString(name).replace(' ', '_')));
        QVERIFY2(svg.open(QIODevice::ReadOnly), qPrintable(svg.fileName()));
        const QString root = QRegularExpression(QStringLiteral("<svg\\b[^>]*>"))
                                 .match(QString::fromUtf8(svg.read(4096)))
                                 .captured();
        const auto attr = [&root](const QString& key) {
            return QRegularExpression(QStringLiteral("\\s%1\\s*=\\s*\"([^\"]*)\"").arg(key))
                .match(root)
                .captured(1)
                .simplified();
        };
        QCOMPARE(attr(QStringLiteral("width")), QString::number(size.width()));
        QCOMPARE(attr(QStringLiteral("height")), QString::number(size.height()));
        QCOMPARE(attr(QStringLiteral("viewBox")),
                 QStringLiteral("0 0 %1 %2").arg(size.width()).arg(size.height()));

        // The application finds it by name and type, and draws either file over the same points.
        const Picture picture = Picture::Lookup(name, type);
        QCOMPARE(picture.naturalSize(), QSizeF(size));
        for (const qreal ratio : {1.0, 2.0}) {
            QCOMPARE(picture.pixmap(ratio).devicePixelRatio(), ratio);
            QCOMPARE(picture.pixmap(ratio).deviceIndependentSize(), QSizeF(size));
        }
    }

    // A stray or misnamed file is a picture the app can never ask for, and usually a sign that a
    // name in the manifest and on disk drifted apart.
    void nothingUnlistedIsShipped() {
        QSet<QString> names, listed;
        for (const Row& row : Manifest()) {
            QVERIFY2(!names.contains(row.name), qPrintable("listed twice: " + row.name));
            names << row.name;
            listed << row.name + '.' + row.type << row.name + "@2x." + row.type;
        }
        QStringList unlisted;
        QDirIterator it(QStringLiteral(":/pictures"), QDir::AllEntries | QDir::Hidden | QDir::System,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString file = it.next().mid(QStringLiteral(":/pictures/").size());
            if (!listed.contains(file)) unlisted << file;
        }
        QVERIFY2(unlisted.isEmpty(), qPrintable("not in the manifest: " + unlisted.join(", ")));
        QVERIFY2(QDir(QStringLiteral(":/pictures")).count() > 0, "no pictures are shipped at all");
    }
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
