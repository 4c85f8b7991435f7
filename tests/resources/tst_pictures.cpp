// The shipped pictures against the manifest: every listed picture is embedded at its exact size
// and type, with a twin at double size for high-density screens, drawn from a vector source of
// that size, and nothing else is shipped. No Q_INIT_RESOURCE anywhere: linking the app's library
// alone must bring the pictures in.

#include "Picture.h"

#include <QDirIterator>
#include <QImageReader>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Row {
    QString name, type;
    QSize size; // empty when the line is malformed
};

// The manifest's rows: name, type, width, height, then free text.
QList<Row> Manifest() {
    QFile file(u"" ROBOT_SOURCE_DIR "/resources/pictures.tsv"_s);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QList<Row> rows;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n').mid(1)) {
        if (line.trimmed().isEmpty()) continue;
        const QStringList cells = line.split(u'\t') + QStringList(4, QString());
        rows.append({cells[0], cells[1], QSize(cells[2].toInt(), cells[3].toInt())});
    }
    return rows;
}

// The format read from the file's bytes (not its name), the size its header declares, and
// whether the whole image decodes to that size.
void CheckShipped(const QString& path, const QString& type, QSize size) {
    QVERIFY2(QFile::exists(path), qPrintable(path + u" is not in the resources"_s));
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), type == "jpg"_L1 ? QByteArray("jpeg") : type.toLatin1());
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
        QVERIFY2(!name.contains(u'@') && !name.contains(u'/'), "clashes with a path");
        QVERIFY(type == "png"_L1 || type == "jpg"_L1);
        CheckShipped(u":/pictures/%1.%2"_s.arg(name, type), type, size);
        CheckShipped(u":/pictures/%1@2x.%2"_s.arg(name, type), type, size * 2);

        // The renderer stretches its source to the manifest's size: the source must be that size.
        QFile svg(u"" ROBOT_SOURCE_DIR "/resources/svg/%1.svg"_s.arg(QString(name).replace(u' ', u'_')));
        QVERIFY2(svg.open(QIODevice::ReadOnly), qPrintable(svg.fileName()));
        const QString root =
            QRegularExpression(u"<svg\\b[^>]*>"_s).match(QString::fromUtf8(svg.read(4096))).captured();
        const auto attr = [&root](const char* key) {
            return QRegularExpression(u"\\s%1\\s*=\\s*\"([^\"]*)\""_s.arg(QLatin1String(key)))
                .match(root)
                .captured(1)
                .simplified();
        };
        QCOMPARE(attr("width"), QString::number(size.width()));
        QCOMPARE(attr("height"), QString::number(size.height()));
        QCOMPARE(attr("viewBox"), u"0 0 %1 %2"_s.arg(size.width()).arg(size.height()));

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
        QDirIterator it(u":/pictures"_s, QDir::AllEntries | QDir::Hidden | QDir::System,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            if (const QString file = it.next().mid(11); !listed.contains(file)) // past ":/pictures/"
                unlisted << file;
        QVERIFY2(unlisted.isEmpty(), qPrintable("not in the manifest: " + unlisted.join(", ")));
        QVERIFY2(QDir(u":/pictures"_s).count() > 0, "no pictures are shipped at all");
    }
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
