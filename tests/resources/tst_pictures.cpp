// The shipped pictures against the manifest: every listed picture is embedded at its exact size
// and type, with a twin at double size for high-density screens, drawn from a vector source of
// that size. No Q_INIT_RESOURCE anywhere: linking the app's library alone must bring the
// pictures in.

#include "Picture.h"

#include <QImageReader>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

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
    // The manifest's rows: name, type, width, height, then free text.
    void everyRowShipsAtItsSize_data() {
        QTest::addColumn<QStringList>("cells");
        QFile manifest(u"" ROBOT_SOURCE_DIR "/resources/pictures.tsv"_s);
        QVERIFY2(manifest.open(QIODevice::ReadOnly | QIODevice::Text), "no manifest");
        for (const QString& line : QString::fromUtf8(manifest.readAll()).split(u'\n').mid(1))
            if (!line.trimmed().isEmpty())
                QTest::newRow(qPrintable(line.section(u'\t', 0, 0))) << line.split(u'\t');
    }
    void everyRowShipsAtItsSize() {
        QFETCH(QStringList, cells);
        QVERIFY2(cells.size() >= 4, "malformed manifest line");
        const QString name = cells[0], type = cells[1];
        const QSize size(cells[2].toInt(), cells[3].toInt());
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
        const int w = size.width(), h = size.height();
        for (const QString& attribute :
             {u"width=\"%1\""_s.arg(w), u"height=\"%1\""_s.arg(h), u"viewBox=\"0 0 %1 %2\""_s.arg(w).arg(h)})
            QVERIFY2(root.contains(u' ' + attribute), qPrintable(root));

        // The application finds it by name and type, and draws either file over the same points.
        const Picture picture = Picture::Lookup(name, type);
        QCOMPARE(picture.naturalSize(), QSizeF(size));
        for (const qreal ratio : {1.0, 2.0}) {
            QCOMPARE(picture.pixmap(ratio).devicePixelRatio(), ratio);
            QCOMPARE(picture.pixmap(ratio).deviceIndependentSize(), QSizeF(size));
        }
    }
};

QTEST_MAIN(TestPictures)
#include "tst_pictures.moc"
