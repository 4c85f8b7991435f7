#include "LazerPicture.h"

#include <QTest>

#include <limits>

// Which picture the laser screen shows for a configuration number.
class TestLazerPicture : public QObject {
    Q_OBJECT
private slots:
    void nameForEveryConfiguration_data() {
        QTest::addColumn<qint32>("type");
        QTest::addColumn<QString>("name");
        QTest::newRow("configuration 1") << 0 << "pim-A";
        QTest::newRow("configuration 2") << 1 << "pim-B";
        QTest::newRow("configuration 3") << 2 << "pim-C";
        QTest::newRow("one past the last") << 3 << "pim-A";
        QTest::newRow("negative") << -1 << "pim-A";
        QTest::newRow("smallest") << std::numeric_limits<qint32>::min() << "pim-A";
        QTest::newRow("largest") << std::numeric_limits<qint32>::max() << "pim-A";
    }
    void nameForEveryConfiguration() {
        QFETCH(qint32, type);
        QFETCH(QString, name);
        QCOMPARE(QString::fromLatin1(LazerPicture::Name(type)), name);
    }
};

QTEST_APPLESS_MAIN(TestLazerPicture)
#include "tst_lazerpicture.moc"
