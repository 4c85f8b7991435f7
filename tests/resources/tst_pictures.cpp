// The shipped pictures against the manifest: every listed picture is embedded at its exact size
// and type, with a twin at double size for high-density screens, and nothing else is shipped.
// No Q_INIT_RESOURCE anywhere: linking the app's library alone must bring the pictures in.

#include <algorithm>

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QSize>
#include <QTest>

namespace {

struct ManifestRow {
    QString name;
    QString type;
    QSize size;
};

const QString kManifestPath = QStringLiteral(ROBOT_SOURCE_DIR "/resources/pictures.tsv");
const QString kSvgDir = QStringLiteral(ROBOT_SOURCE_DIR "/resources/svg/");

// Reads the tab-separated manifest; columns are found by their header names. Any malformed row
// makes the whole read fail with a message, so a broken manifest cannot pass as an empty one.
bool readManifest(QList<ManifestRow>* rows, QString* error) {
    QFile file(kManifestPath);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = QStringLiteral("cannot open %1").arg(kManifestPath);
        return false;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    if (lines.isEmpty()) {
        *error = QStringLiteral("empty manifest");
        return false;
    }
    const QStringList header = lines.first().trimmed().split(QLatin1Char('\t'));
    const qsizetype nameCol = header.indexOf(QStringLiteral("name"));
    const qsizetype typeCol = header.indexOf(QStringLiteral("type"));
    const qsizetype widthCol = header.indexOf(QStringLiteral("width"));
    const qsizetype heightCol = header.indexOf(QStringLiteral("height"));
    if (nameCol < 0 || typeCol < 0 || widthCol < 0 || heightCol < 0) {
        *error = QStringLiteral("manifest header lacks name/type/width/height: %1").arg(lines.first());
        return false;
    }
    const qsizetype needed = std::max({nameCol, typeCol, widthCol, heightCol}) + 1;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        QString line = lines.at(i);
        if (line.endsWith(QLatin1Char('\r'))) line.chop(1);
        if (line.trimmed().isEmpty()) continue;
        const QStringList cells = line.split(QLatin1Char('\t'));
        bool okW = false;
        bool okH = false;
        const int w = cells.size() >= needed ? cells.at(widthCol).toInt(&okW) : 0;
        const int h = cells.size() >= needed ? cells.at(heightCol).toInt(&okH) : 0;
        if (!okW || !okH || w <= 0 || h <= 0 || cells.at(nameCol).isEmpty()) {
            *error = QStringLiteral("manifest line %1 is malformed: %2").arg(i + 1).arg(line);
            return false;
        }
        rows->append({cells.at(nameCol), cells.at(typeCol), QSize(w, h)});
    }
    if (rows->isEmpty()) {
        *error = QStringLiteral("manifest lists no pictures");
        return false;
    }
    return true;
}

// The format name Qt's readers report for a manifest type.
QByteArray readerFormat(const QString& type) {
    return type == QLatin1String("jpg") ? QByteArrayLiteral("jpeg") : type.toLatin1();
}

// Opens a resource picture, deciding the format from its bytes (not its name), and returns
// the size its header declares plus whether the full image decodes.
struct Probe {
    bool exists = false;
    QByteArray format;
    QSize size;
    bool decodes = false;
};

Probe probe(const QString& path) {
    Probe p;
    p.exists = QFile::exists(path);
    if (!p.exists) return p;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    p.format = reader.format();
    p.size = reader.size();
    const QImage image = reader.read();
    p.decodes = !image.isNull() && image.size() == p.size;
    return p;
}

// Width, height and viewBox attributes of the root element of an SVG file.
struct SvgHeader {
    QString width;
    QString height;
    QString viewBox;
};

bool readSvgHeader(const QString& path, SvgHeader* out) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    const QString text = QString::fromUtf8(file.read(4096));
    const QRegularExpression root(QStringLiteral("<svg\\b[^>]*>"));
    const QRegularExpressionMatch m = root.match(text);
    if (!m.hasMatch()) return false;
    const QString tag = m.captured(0);
    auto attr = [&tag](const char* key) {
        const QRegularExpression re(QStringLiteral("\\s%1\\s*=\\s*\"([^\"]*)\"").arg(QLatin1String(key)));
        return re.match(tag).captured(1).simplified();
    };
    out->width = attr("width");
    out->height = attr("height");
    out->viewBox = attr("viewBox");
    return true;
}

} // namespace

class TestPictures : public QObject {
    Q_OBJECT

private:
    QList<ManifestRow> rows_;
    QString manifestError_;
    bool manifestOk_ = false;

    void rowsAsData() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QSize>("size");
        for (const ManifestRow& row : rows_)
            QTest::newRow(qPrintable(row.name)) << row.name << row.type << row.size;
    }

private slots:
    void initTestCase() { manifestOk_ = readManifest(&rows_, &manifestError_); }

    void manifestIsWellFormed() {
        QVERIFY2(manifestOk_, qPrintable(manifestError_));
        QSet<QString> seen;
        for (const ManifestRow& row : rows_) {
            QVERIFY2(!seen.contains(row.name), qPrintable(QStringLiteral("listed twice: ") + row.name));
            seen.insert(row.name);
            QVERIFY2(row.type == QLatin1String("png") || row.type == QLatin1String("jpg"),
                     qPrintable(row.name + QStringLiteral(": unknown type ") + row.type));
            QVERIFY2(!row.name.contains(QLatin1Char('@')) && !row.name.contains(QLatin1Char('/')),
                     qPrintable(row.name + QStringLiteral(": name would clash with a resource path")));
        }
    }

    void vectorSourceHasPictureSize_data() { rowsAsData(); }
    void vectorSourceHasPictureSize() {
        QFETCH(QString, name);
        QFETCH(QSize, size);
        const QString path =
            kSvgDir + QString(name).replace(QLatin1Char(' '), QLatin1Char('_')) + QStringLiteral(".svg");
        QVERIFY2(QFile::exists(path), qPrintable(QStringLiteral("no vector source ") + path));
        SvgHeader header;
        QVERIFY2(readSvgHeader(path, &header), qPrintable(QStringLiteral("no <svg> element in ") + path));
        QCOMPARE(header.width, QString::number(size.width()));
        QCOMPARE(header.height, QString::number(size.height()));
        QCOMPARE(header.viewBox, QStringLiteral("0 0 %1 %2").arg(size.width()).arg(size.height()));
    }

    void shippedAtExactSize_data() { rowsAsData(); }
    void shippedAtExactSize() {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(QSize, size);
        const QString path = QStringLiteral(":/pictures/%1.%2").arg(name, type);
        const Probe p = probe(path);
        QVERIFY2(p.exists, qPrintable(path + QStringLiteral(" is not in the resources")));
        QCOMPARE(p.format, readerFormat(type));
        QCOMPARE(p.size, size);
        QVERIFY2(p.decodes, qPrintable(path + QStringLiteral(" does not decode")));
    }

    void highDensityTwinAtDoubleSize_data() { rowsAsData(); }
    void highDensityTwinAtDoubleSize() {
        QFETCH(QString, name);
        QFETCH(QString, type);
        QFETCH(QSize, size);
        const QString path = QStringLiteral(":/pictures/%1@2x.%2").arg(name, type);
        const Probe p = probe(path);
        QVERIFY2(p.exists, qPrintable(path + QStringLiteral(" is not in the resources")));
        QCOMPARE(p.format, readerFormat(type));
        QCOMPARE(p.size, size * 2);
        QVERIFY2(p.decodes, qPrintable(path + QStringLiteral(" does not decode")));
    }

    // Walks the whole /pictures tree: a stray or misnamed file is a picture the app can never
    // ask for, and usually a sign that a name in the manifest and on disk drifted apart.
    void nothingUnlistedIsShipped() {
        QVERIFY2(manifestOk_, qPrintable(manifestError_));
        QSet<QString> allowed;
        for (const ManifestRow& row : rows_) {
            allowed.insert(row.name + QLatin1Char('.') + row.type);
            allowed.insert(row.name + QStringLiteral("@2x.") + row.type);
        }
        QStringList unlisted;
        int shipped = 0;
        QDirIterator it(QStringLiteral(":/pictures"), QDir::AllEntries | QDir::Hidden | QDir::System,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString path = it.next();
            const QString relative = path.mid(QStringLiteral(":/pictures/").size());
            ++shipped;
            if (!allowed.contains(relative)) unlisted << relative;
        }
        QVERIFY2(shipped > 0, "no pictures are shipped at all under :/pictures");
        QVERIFY2(unlisted.isEmpty(),
                 qPrintable(QStringLiteral("not in the manifest: ") + unlisted.join(QStringLiteral(", "))));
    }
};

QTEST_GUILESS_MAIN(TestPictures)
#include "tst_pictures.moc"
