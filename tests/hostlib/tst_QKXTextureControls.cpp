// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxStyle.h"
#include "tests/hostlib/TextureStage.h"
#include "tests/support/KxTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QToolButton>

class tst_QKXTextureControls : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldKeepTheTextureSilently();
    void shouldReportEachButtonAlone_data();
    void shouldReportEachButtonAlone();
    void shouldNameEveryButton();
    void shouldSetTheIconOfEachButton();
    void shouldReportATypedPathOnce();
    void shouldReportATypedPathWhenTheFieldIsLeft();
    void shouldNotReportAPathThatIsNotEdited();
    void shouldTakeATypedPathBackOnEscape();
    void shouldCleanATypedPath_data();
    void shouldCleanATypedPath();
    void shouldKeepTypingThroughARefreshWithTheSamePath();
    void shouldShowTheTailOfALongPath();
    void shouldTakeADroppedImage();
    void shouldRefuseOtherDrops();
    void shouldShowTheImage();
    void shouldSayWhatIsWrongWithAFile_data();
    void shouldSayWhatIsWrongWithAFile();
    void shouldShowAChangedFileAnew();
    void shouldReportTheUseOfTheTextureAlone();
    void shouldDisableAllButTheUseOfTheTexture();
    void shouldHandOnTheMarking();
    void shouldHideTheOldPathAndImageWhileMixed();
    void shouldSendAConfirmedPathWhileMixed();

private:
    QString write(const QString &name, const QColor &color);

    QTemporaryDir m_dir;
};

void tst_QKXTextureControls::initTestCase()
{
    QApplication::setStyle(new kxStyle);
    QVERIFY(m_dir.isValid());
}

QString tst_QKXTextureControls::write(const QString &name, const QColor &color)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(color);
    const QString path = m_dir.filePath(name);
    return image.save(path) ? path : QString();
}

void tst_QKXTextureControls::shouldKeepTheTextureSilently()
{
    Stage stage;
    QCOMPARE(stage.controls.getTexture(), QString());
    for (const char *path : {"/no/such.png", "relative/ name.png ", ""}) {
        stage.controls.setTexture(QLatin1String(path));
        QCOMPARE(stage.controls.getTexture(), QLatin1String(path));
        QCOMPARE(stage.path()->text(), QLatin1String(path));
    }
    stage.controls.setUseTexture(false);
    QVERIFY(!stage.controls.useTexture());
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureControls::shouldReportEachButtonAlone_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("which");
    const char *const names[] = {"loadTexture", "reloadTexture", "writeTexture", "showTextureInfo",
                                 "clearTexture"};
    for (int i = 0; i < 5; ++i)
        QTest::newRow(names[i]) << QString::fromLatin1(names[i]) << i;
}

void tst_QKXTextureControls::shouldReportEachButtonAlone()
{
    QFETCH(QString, button);
    QFETCH(int, which);
    Stage stage;
    stage.controls.setTexture(QStringLiteral("/no/such.png"));
    QTest::mouseClick(stage.controls.findChild<QToolButton *>(button), Qt::LeftButton);
    const int counts[] = {stage.load.size(), stage.reload.size(), stage.write.size(),
                          stage.info.size(), stage.clear.size()};
    QCOMPARE(counts[which], 1);
    QCOMPARE(stage.reports(), 1);
    QCOMPARE(stage.controls.getTexture(), QStringLiteral("/no/such.png"));
}

void tst_QKXTextureControls::shouldNameEveryButton()
{
    QKXTextureControls controls;
    const auto buttons = controls.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 5);
    QSet<QString> names;
    for (const QToolButton *button : buttons) {
        QVERIFY(!button->toolTip().isEmpty());
        QVERIFY(!button->icon().isNull());
        names.insert(button->accessibleName());
    }
    QCOMPARE(names.size(), 5);
    QVERIFY(!names.contains(QString()));
}

void tst_QKXTextureControls::shouldSetTheIconOfEachButton()
{
    using T = QKXTextureControls;
    const QPair<const char *, void (T::*)(const QIcon &)> rows[] = {
        {"loadTexture", &T::setLoadTextureIcon},   {"reloadTexture", &T::setReloadTextureIcon},
        {"writeTexture", &T::setSaveTextureIcon},  {"showTextureInfo", &T::setShowTextureInfoIcon},
        {"clearTexture", &T::setClearTextureIcon},
    };
    for (const auto &row : rows) {
        Stage stage;
        const QIcon icon = kxIconManager::getIcon("Undo", std::string());
        (stage.controls.*row.second)(icon);
        const auto buttons = stage.controls.findChildren<QToolButton *>();
        for (const QToolButton *button : buttons) {
            const bool given = button->icon().cacheKey() == icon.cacheKey();
            QCOMPARE(given, button->objectName() == QLatin1String(row.first));
        }
    }
}

void tst_QKXTextureControls::shouldReportATypedPathOnce()
{
    Stage stage;
    stage.controls.setTexture(QStringLiteral("/old.png"));
    stage.type(QStringLiteral("/new.png"));
    QCOMPARE(stage.reports(), 0);
    QTest::keyClick(stage.path(), Qt::Key_Return);
    QCOMPARE(stage.file.value(0).value(0).toString(), QStringLiteral("/new.png"));
    QCOMPARE(stage.controls.getTexture(), QStringLiteral("/new.png"));
    QTest::keyClick(stage.path(), Qt::Key_Return);
    stage.other.setFocus();
    QCOMPARE(stage.reports(), 1);
}

void tst_QKXTextureControls::shouldReportATypedPathWhenTheFieldIsLeft()
{
    Stage stage;
    stage.type(QStringLiteral("/new.png"));
    stage.other.setFocus();
    QCOMPARE(stage.file.size(), 1);
    QCOMPARE(stage.reports(), 1);
}

void tst_QKXTextureControls::shouldNotReportAPathThatIsNotEdited()
{
    Stage stage;
    stage.controls.setTexture(QStringLiteral("/old.png"));
    stage.path()->setFocus();
    QTest::keyClick(stage.path(), Qt::Key_Return);
    stage.other.setFocus();
    stage.type(QStringLiteral("/old.png"));
    QTest::keyClick(stage.path(), Qt::Key_Return);
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureControls::shouldTakeATypedPathBackOnEscape()
{
    Stage stage;
    stage.controls.setTexture(QStringLiteral("/old.png"));
    stage.type(QStringLiteral("/new.png"));
    QTest::keyClick(stage.path(), Qt::Key_Escape);
    QCOMPARE(stage.path()->text(), QStringLiteral("/old.png"));
    stage.other.setFocus();
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureControls::shouldCleanATypedPath_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("path");
    QTest::newRow("blanks") << " /a b.png "
                            << "/a b.png";
    QTest::newRow("quotes") << "\"/a b.png\""
                            << "/a b.png";
    QTest::newRow("address") << "file:///a%20b.png"
                             << "/a b.png";
    QTest::newRow("nothing") << " "
                             << "";
}

void tst_QKXTextureControls::shouldCleanATypedPath()
{
    QFETCH(QString, typed);
    QFETCH(QString, path);
    Stage stage;
    stage.controls.setTexture(QStringLiteral("/old.png"));
    stage.type(typed);
    QTest::keyClick(stage.path(), Qt::Key_Return);
    QCOMPARE(stage.file.value(0).value(0).toString(), path);
    QCOMPARE(stage.path()->text(), path);
    QCOMPARE(stage.reports(), 1);
}

void tst_QKXTextureControls::shouldKeepTypingThroughARefreshWithTheSamePath()
{
    Stage stage;
    stage.controls.setTexture(QStringLiteral("/old.png"));
    stage.type(QStringLiteral("/ne"));
    stage.controls.setTexture(QStringLiteral("/old.png"));
    QCOMPARE(stage.path()->text(), QStringLiteral("/ne"));
    stage.controls.setTexture(QStringLiteral("/another.png"));
    QCOMPARE(stage.path()->text(), QStringLiteral("/another.png"));
    stage.other.setFocus();
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureControls::shouldShowTheTailOfALongPath()
{
    Stage stage;
    stage.window.resize(240, 300);
    const auto shown = [&stage](const QString &path) {
        stage.controls.setTexture(path);
        return stage.path()->grab().toImage();
    };
    const QString middle(200, QLatin1Char('m'));
    QCOMPARE(shown("/ab" + middle + "tail.png"), shown("/ba" + middle + "tail.png"));
    QVERIFY(shown("/ab" + middle + "tail.png") != shown("/ab" + middle + "TAIL.png"));
    QCOMPARE(stage.path()->toolTip(), stage.controls.getTexture());
    stage.path()->setFocus();
    QTest::keyClick(stage.path(), Qt::Key_Home);
    stage.other.setFocus();
    QCOMPARE(stage.path()->cursorPosition(), stage.path()->text().size());
}

static bool drop(QKXTextureControls *controls, const QList<QUrl> &urls)
{
    QMimeData data;
    data.setUrls(urls);
    const QPoint point = controls->rect().center();
    QDragEnterEvent enter(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(controls, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event(point, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(controls, &event);
    return true;
}

void tst_QKXTextureControls::shouldTakeADroppedImage()
{
    Stage stage;
    const QString path = write(QStringLiteral("dropped.png"), Qt::red);
    QVERIFY(drop(&stage.controls, {QUrl::fromLocalFile(path)}));
    QCOMPARE(stage.file.value(0).value(0).toString(), path);
    QCOMPARE(stage.controls.getTexture(), path);
    QCOMPARE(stage.reports(), 1);
    QVERIFY(!stage.path()->acceptDrops());
}

void tst_QKXTextureControls::shouldRefuseOtherDrops()
{
    Stage stage;
    const QUrl image = QUrl::fromLocalFile(QStringLiteral("/a.png"));
    QVERIFY(!drop(&stage.controls, {QUrl::fromLocalFile(QStringLiteral("/a.txt"))}));
    QVERIFY(!drop(&stage.controls, {image, image}));
    QVERIFY(!drop(&stage.controls, {}));
    stage.controls.setUseTexture(false);
    QVERIFY(!drop(&stage.controls, {image}));
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureControls::shouldShowTheImage()
{
    Stage stage;
    stage.controls.setTexture(write(QStringLiteral("green.png"), Qt::green));
    const QImage shown = stage.thumbnail()->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::green));
    QVERIFY(stage.sign().contains(QStringLiteral("40 × 20")));
    QVERIFY(stage.thumbnail()->toolTip().contains(QStringLiteral("green.png")));
}

void tst_QKXTextureControls::shouldSayWhatIsWrongWithAFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("words");
    QTest::newRow("missing") << "missing.png"
                             << "does not exist";
    QTest::newRow("folder") << ""
                            << "does not exist";
    QTest::newRow("no image") << "text.png"
                              << "cannot be read";
}

void tst_QKXTextureControls::shouldSayWhatIsWrongWithAFile()
{
    QFETCH(QString, name);
    QFETCH(QString, words);
    QFile text(m_dir.filePath(QStringLiteral("text.png")));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no image") > 0);
    text.close();
    Stage stage;
    const QImage none = stage.thumbnail()->grab().toImage();
    stage.controls.setTexture(m_dir.filePath(name));
    QVERIFY2(stage.sign().contains(words), qPrintable(stage.sign()));
    QVERIFY(stage.thumbnail()->toolTip().startsWith(m_dir.filePath(name)));
    QVERIFY(stage.thumbnail()->grab().toImage() != none);
    stage.controls.setTexture(QString());
    QCOMPARE(stage.sign(), QString());
    QCOMPARE(stage.thumbnail()->grab().toImage(), none);
}

void tst_QKXTextureControls::shouldShowAChangedFileAnew()
{
    Stage stage;
    const QString path = write(QStringLiteral("changing.png"), Qt::red);
    stage.controls.setTexture(path);
    QVERIFY(QFile::remove(path));
    stage.controls.setTexture(path);
    QVERIFY(stage.sign().contains(QStringLiteral("does not exist")));
    write(QStringLiteral("changing.png"), Qt::blue);
    stage.controls.setTexture(path);
    const QImage shown = stage.thumbnail()->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::blue));
}

void tst_QKXTextureControls::shouldReportTheUseOfTheTextureAlone()
{
    Stage stage;
    QTest::keyClick(stage.find<QCheckBox>("useTexture"), Qt::Key_Space);
    QVERIFY(!stage.controls.useTexture());
    QCOMPARE(stage.texture.size(), 1);
    QCOMPARE(stage.reports(), 1);
}

void tst_QKXTextureControls::shouldDisableAllButTheUseOfTheTexture()
{
    Stage stage;
    stage.controls.setUseTexture(false);
    QVERIFY(stage.find<QCheckBox>("useTexture")->isEnabled());
    QVERIFY(!stage.path()->isEnabled());
    QVERIFY(!stage.find<QToolButton>("loadTexture")->isEnabled());
    QVERIFY(!stage.find<QWidget>("gamma")->isEnabled());
    stage.controls.setUseTexture(true);
    QVERIFY(stage.path()->isEnabled());
    QVERIFY(stage.find<QWidget>("gamma")->isEnabled());
}

void tst_QKXTextureControls::shouldHandOnTheMarking()
{
    Stage stage;
    stage.mark(true);
    for (QWidget *inner : {static_cast<QWidget *>(stage.path()), stage.thumbnail()}) {
        QCOMPARE(inner->property("multiselect"), QVariant(true));
        QCOMPARE(inner->accessibleDescription(), kxStyle::mixedText());
    }
    QVERIFY(!kxStyle::isMultiselect(stage.find<QWidget>("gamma")));
    stage.mark(false);
    QVERIFY(!stage.path()->property("multiselect").isValid());
    QVERIFY(!stage.thumbnail()->property("multiselect").isValid());
}

void tst_QKXTextureControls::shouldHideTheOldPathAndImageWhileMixed()
{
    Stage stage;
    stage.mark(true);
    const auto shown = [&stage](const QString &path) {
        stage.controls.setTexture(path);
        return qMakePair(stage.path()->grab().toImage(), stage.thumbnail()->grab().toImage());
    };
    const auto mixed = shown(write(QStringLiteral("one.png"), Qt::red));
    QVERIFY(mixed == shown(QString()));
    stage.mark(false);
    const auto plain = shown(QString());
    QVERIFY(plain.first != mixed.first);
    QVERIFY(plain.second != mixed.second);
}

void tst_QKXTextureControls::shouldSendAConfirmedPathWhileMixed()
{
    Stage stage;
    stage.controls.setTexture(QStringLiteral("/old.png"));
    stage.mark(true);
    stage.path()->setFocus();
    stage.other.setFocus();
    QCOMPARE(stage.reports(), 0);
    stage.path()->setFocus();
    QTest::keyClick(stage.path(), Qt::Key_Return);
    QCOMPARE(stage.file.value(0).value(0).toString(), QStringLiteral("/old.png"));
    stage.type(QStringLiteral("/old.png"));
    stage.other.setFocus();
    QCOMPARE(stage.file.size(), 2);
    stage.type(QStringLiteral("/old.png"));
    QTest::keyClick(stage.path(), Qt::Key_Return);
    stage.other.setFocus();
    QCOMPARE(stage.file.size(), 3);
    QCOMPARE(stage.reports(), 3);
}

KX_TEST_MAIN(tst_QKXTextureControls)
#include "tst_QKXTextureControls.moc"
