#include "Scene.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

// The judge of the end-to-end screenshots: how scenes are laid out and how far images differ.
class TestScene : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void difference_data();
    void difference();
    void differenceOutsideTheImages();
    void backgroundAndPictures();
    void buttonPictureIsCentredVertically_data();
    void buttonPictureIsCentredVertically();
    void missingPictureMakesSceneInvalid();
    void spacesInNamesAreUnderscoresOnDisk();

private:
    QTemporaryDir m_dir;
};

namespace {
QImage Filled(QSize size, const QColor& colour) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}
} // namespace

void TestScene::initTestCase() {
    QVERIFY(m_dir.isValid());
    Scene::SetPictureFolder(m_dir.path());
    QVERIFY(Filled({1024, 768}, QColor(0, 0, 100)).save(m_dir.filePath("ground.png")));
    QVERIFY(Filled({20, 10}, QColor(255, 0, 0)).save(m_dir.filePath("red.png")));
    QVERIFY(Filled({20, 10}, QColor(0, 255, 0, 0)).save(m_dir.filePath("clear.png")));
    QVERIFY(Filled({4, 4}, Qt::white).save(m_dir.filePath("long_bar.png")));
}

void TestScene::difference_data() {
    QTest::addColumn<QColor>("a");
    QTest::addColumn<QColor>("b");
    QTest::addColumn<double>("expected");
    QTest::newRow("same") << QColor(10, 20, 30) << QColor(10, 20, 30) << 0.0;
    QTest::newRow("black and white") << QColor(Qt::black) << QColor(Qt::white) << 255.0;
    QTest::newRow("one channel") << QColor(0, 0, 0) << QColor(90, 0, 0) << 30.0;
    QTest::newRow("either way") << QColor(90, 60, 30) << QColor(0, 0, 0) << 60.0;
}

void TestScene::difference() {
    QFETCH(QColor, a);
    QFETCH(QColor, b);
    QFETCH(double, expected);
    const QImage x = Filled({50, 40}, a), y = Filled({50, 40}, b);
    QCOMPARE(Scene::Difference(x, y, QRect(5, 5, 10, 10)), expected);
    QCOMPARE(Scene::Difference(y, x, QRect(0, 0, 50, 40)), expected);
}

void TestScene::differenceOutsideTheImages() {
    const QImage x = Filled({50, 40}, Qt::black);
    QCOMPARE(Scene::Difference(x, x, QRect(45, 0, 10, 10)), 255.0);
    QCOMPARE(Scene::Difference(x, x, QRect()), 255.0);
    QCOMPARE(Scene::Difference(x, QImage(), QRect(0, 0, 5, 5)), 255.0);
}

void TestScene::backgroundAndPictures() {
    Scene scene(QStringLiteral("ground"));
    scene.picture(QStringLiteral("red"), QPoint(100, 200)).picture(QStringLiteral("clear"), QPoint(0, 0));
    QVERIFY(scene.isValid());
    const QImage& image = scene.image();
    QCOMPARE(image.size(), QSize(1024, 768));
    QCOMPARE(image.pixelColor(100, 200), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(119, 209), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(120, 209), QColor(0, 0, 100));
    QCOMPARE(image.pixelColor(99, 200), QColor(0, 0, 100));
    // A transparent picture leaves the background as it was.
    QCOMPARE(image.pixelColor(5, 5), QColor(0, 0, 100));
    // Only the part with the picture differs from the bare background.
    const Scene ground(QStringLiteral("ground"));
    QCOMPARE(Scene::Difference(image, ground.image(), QRect(0, 0, 100, 768)), 0.0);
    QVERIFY(Scene::Difference(image, ground.image(), QRect(100, 200, 20, 10)) > 100.0);
}

void TestScene::buttonPictureIsCentredVertically_data() {
    QTest::addColumn<int>("frameHeight");
    QTest::addColumn<int>("top");
    QTest::newRow("same height") << 10 << 300;
    QTest::newRow("taller frame") << 30 << 310;
    QTest::newRow("odd leftover") << 13 << 302; // 1.5 points down, rounded as drawing does
    QTest::newRow("shorter frame") << 6 << 298;
}

void TestScene::buttonPictureIsCentredVertically() {
    QFETCH(int, frameHeight);
    QFETCH(int, top);
    Scene scene(QStringLiteral("ground"));
    scene.button(QStringLiteral("red"), QRect(40, 300, 200, frameHeight));
    QCOMPARE(scene.image().pixelColor(40, top), QColor(255, 0, 0));
    QCOMPARE(scene.image().pixelColor(40, top - 1), QColor(0, 0, 100));
    QCOMPARE(scene.image().pixelColor(40, top + 9), QColor(255, 0, 0));
    QCOMPARE(scene.image().pixelColor(40, top + 10), QColor(0, 0, 100));
    // Against the frame's left edge.
    QCOMPARE(scene.image().pixelColor(39, top), QColor(0, 0, 100));
}

void TestScene::missingPictureMakesSceneInvalid() {
    QVERIFY(!Scene(QStringLiteral("no such ground")).isValid());
    Scene scene(QStringLiteral("ground"));
    scene.button(QStringLiteral("no such button"), QRect(0, 0, 10, 10));
    QVERIFY(!scene.isValid());
    QVERIFY(Scene::Picture(QStringLiteral("red"), QStringLiteral("jpg")).isNull());
}

void TestScene::spacesInNamesAreUnderscoresOnDisk() {
    QCOMPARE(Scene::Picture(QStringLiteral("long bar")).size(), QSize(4, 4));
}

QTEST_MAIN(TestScene)
#include "scene_test.moc"
