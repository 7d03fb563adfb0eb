// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "tests/viewer/scene/SceneText.h"
#include "viewer/scene/SceneFormat.h"
#include "viewer/scene/SceneReader.h"

#include <QTemporaryDir>

using viewer::Node;
using viewer::Overlay;
using viewer::Scene;
using viewer::SceneReader;
using viewer::SceneReading;

namespace {

QByteArray head()
{
    return R"({"format": "overlay-scene", "version": 1, "overlays": [)";
}

/// A scene file with these elements at its top.
QByteArray sceneWith(const QByteArray &elements)
{
    return head() + elements + "]}";
}

QByteArray overlayWith(const QByteArray &keys)
{
    return sceneWith(R"({"kind": "group"}, {"kind": "group", "children": [{"kind": "overlay", )"
                     + keys + "}]}");
}

/// `levels` groups, one inside the other.
QByteArray nested(int levels)
{
    QByteArray text;
    for (int i = 0; i < levels; ++i)
        text += R"({"kind":"group","children":[)";
    return sceneWith(text + QByteArray("]}").repeated(levels));
}

/// A file that is refused: its content, how the message goes on after the file's name, and a part.
void addRefusalColumns()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("begin");
    QTest::addColumn<QString>("part");
}

void row(const char *what, const QByteArray &content, const char *begin, const char *part)
{
    QTest::newRow(what) << content << QString(begin) << QString::fromUtf8(part);
}

const Node &only(const Scene &scene, const Node &parent)
{
    return *scene.find(parent.children.front());
}

} // namespace

class tst_SceneReader : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadATree();
    void shouldReadEveryProperty();
    void shouldGiveMissingKeysTheirValues();
    void shouldResolveImagesAgainstTheFile();
    void shouldWarnOnceOfAMissingImage();
    void shouldKeepTheFirstEnabledChildOfASwitch();
    void shouldReadTheDeepestTree();
    void shouldReadTransparentAndAbsentColours();
    void shouldRefuseWhatIsNoScene_data();
    void shouldRefuseWhatIsNoScene();
    void shouldRefuseValuesWithTheirPlace_data();
    void shouldRefuseValuesWithTheirPlace() { shouldRefuseWhatIsNoScene(); }
    void shouldRefuseWhatIsNoFile();
    void shouldRefuseAFileThatIsTooLarge();
    void shouldNotNameAllLevelsOfADeepPlace();
};

void tst_SceneReader::shouldReadATree()
{
    const SceneReading reading =
        SceneReader::parse(sceneWith(R"({"kind": "overlay", "name": "a", "enabled": false},
                     {"kind": "group", "name": "g", "children": [{"kind": "overlay", "name": "b"}]},
                     {"kind": "switch", "name": "s", "children": []})"),
                           "scene.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QCOMPARE(scenetext::dump(*reading.scene), QString("a- g(b) s{}"));
    QVERIFY(reading.error.isEmpty());
    QVERIFY(reading.warnings.isEmpty());
}

void tst_SceneReader::shouldReadEveryProperty()
{
    const SceneReading reading = SceneReader::parse(
        sceneWith(R"({"kind": "overlay", "name": "é", "type": "image", "text": "one\ntwo",
            "font": "Family", "fontColor": "#010203", "backgroundColor": "#0A0b0c",
            "backgroundTransparency": "#ffffff", "sizeType": "relative", "size": 0.25,
            "position": [0, 1], "offset": [-1.5, 2e2]})"),
        "scene.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    const Node &node = only(*reading.scene, reading.scene->root());
    QCOMPARE(node.name, QString::fromUtf8("é"));
    QCOMPARE(node.overlay.type, 1);
    QCOMPARE(node.overlay.text, QString("one\ntwo"));
    QCOMPARE(node.overlay.font, QString("Family"));
    QCOMPARE(node.overlay.fontColor, QColor(1, 2, 3));
    QCOMPARE(node.overlay.backgroundColor, QColor(10, 11, 12));
    QCOMPARE(node.overlay.backgroundTransparency, QColor(255, 255, 255));
    QCOMPARE(node.overlay.sizeType, 1);
    QCOMPARE(node.overlay.size, 0.25F);
    QCOMPARE(node.overlay.position, QPointF(0, 1));
    QCOMPARE(node.overlay.offset, QPointF(-1.5, 200));
}

void tst_SceneReader::shouldGiveMissingKeysTheirValues()
{
    const SceneReading reading = SceneReader::parse(sceneWith(R"({"kind": "overlay"})"), "s.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    const Node &node = only(*reading.scene, reading.scene->root());
    QVERIFY(node.enabled);
    QVERIFY(node.name.isEmpty());
    QVERIFY(node.overlay.text.isEmpty());
    QCOMPARE(node.overlay.font, Overlay().font);
    QCOMPARE(node.overlay.size, Overlay().size);
    QCOMPARE(node.overlay.position, Overlay().position);
}

void tst_SceneReader::shouldResolveImagesAgainstTheFile()
{
    QTemporaryDir folder;
    QDir(folder.path()).mkdir("pictures");
    QFile picture(folder.filePath("pictures/a.png"));
    QVERIFY(picture.open(QIODevice::WriteOnly));
    QFile file(folder.filePath("scene.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(sceneWith(R"({"kind": "overlay", "image": "pictures/../pictures/a.png"})"));
    file.close();
    const SceneReading reading = SceneReader::read(file.fileName());
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QVERIFY(reading.warnings.isEmpty());
    QCOMPARE(only(*reading.scene, reading.scene->root()).overlay.image, picture.fileName());
}

void tst_SceneReader::shouldWarnOnceOfAMissingImage()
{
    const SceneReading reading = SceneReader::parse(
        sceneWith(R"({"kind": "group", "children": [{"kind": "overlay", "image": "no.png"},
                      {"kind": "overlay", "image": "no.png"}]})"),
        "/nowhere/scene.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QCOMPARE(reading.missingImages.size(), 1);
    QCOMPARE(reading.missingImages.first().path, QString("/nowhere/no.png"));
    QCOMPARE(reading.missingImages.first().text,
             QString("/nowhere/scene.json: /overlays/0/children/0: the image "
                     "file /nowhere/no.png is missing"));
}

void tst_SceneReader::shouldKeepTheFirstEnabledChildOfASwitch()
{
    const SceneReading reading =
        SceneReader::parse(sceneWith(R"({"kind": "switch", "name": "s", "children": [
            {"kind": "overlay", "name": "a", "enabled": false}, {"kind": "overlay", "name": "b"},
            {"kind": "overlay", "name": "c"}]})"),
                           "x.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QCOMPARE(scenetext::dump(*reading.scene), QString("s{a- b c-}"));
    QCOMPARE(reading.warnings.size(), 1);
    QVERIFY(reading.warnings.constFirst().startsWith("x.json: /overlays/0/children/2: \"c\""));
}

void tst_SceneReader::shouldReadTheDeepestTree()
{
    const SceneReading reading = SceneReader::parse(nested(viewer::sceneformat::MaxLevels), "x");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QCOMPARE(reading.scene->nodeCount(), viewer::sceneformat::MaxLevels + 1);
}

void tst_SceneReader::shouldReadTransparentAndAbsentColours()
{
    const SceneReading reading = SceneReader::parse(
        sceneWith(R"({"kind": "overlay", "fontColor": "#10203040", "backgroundColor": null})"),
        "x");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    const Overlay &overlay = only(*reading.scene, reading.scene->root()).overlay;
    QCOMPARE(overlay.fontColor, QColor(0x10, 0x20, 0x30, 0x40));
    QVERIFY(!overlay.backgroundColor.isValid());
}

void tst_SceneReader::shouldRefuseWhatIsNoScene_data()
{
    addRefusalColumns();
    const auto byteOf = [](const QByteArray &content, const char *part) {
        return QByteArray("byte " + QByteArray::number(content.indexOf(part) + 1) + ":");
    };
    row("empty", "", "byte 1", "JSON");
    row("no JSON", "hello", "byte 1", "JSON");
    row("cut off", head(), "byte 56", "JSON");
    row("something behind", sceneWith("") + "x", "byte 58", "JSON");
    const QByteArray noNumber = overlayWith(R"("size": NaN)");
    row("not a number of JSON", noNumber, byteOf(noNumber, "NaN"), "JSON");
    const QByteArray noText =
        sceneWith(R"({"kind": "overlay", "name": ")" + QByteArray("\xff") + R"("})");
    row("not UTF-8", noText, byteOf(noText, "\xff"), "UTF-8");
    const QByteArray beyond = overlayWith(R"("size": 1e999)");
    row("number beyond all", beyond, byteOf(beyond, "1e999"), "found 1e999");
    row("a list", "[]", "expected", "found a list of 0");
    row("another format", R"({"format": "other"})", "/format", "found other");
    row("no format", "{}", "/format", "found nothing");
    row("format of another type", R"({"format": 3})", "/format", "expected a text, found 3");
    row("newer", R"({"format": "overlay-scene", "version": 2, "overlays": 7})", "/version",
        "newer version");
    row("version 0", R"({"format": "overlay-scene", "version": 0})", "/version", "expected 1");
    row("no version", R"({"format": "overlay-scene"})", "/version", "expected 1");
    row("no overlays", R"({"format": "overlay-scene", "version": 1})", "/overlays", "a list");
    row("overlays of another type",
        R"({"format": "overlay-scene", "version": 1, "overlays": {"a": 1}})", "/overlays",
        "expected a list, found an object");
    row("too deep", nested(viewer::sceneformat::MaxLevels + 1), "/overlays/0/children/0",
        "levels of groups");
    row("an unknown value too deep",
        sceneWith(R"({"kind": "overlay", "x": )" + QByteArray(101, '[') + QByteArray(101, ']')
                  + '}'),
        "/overlays/0/x", "100 levels");
    row("endless brackets", QByteArray(100000, '['),
        "byte 40001: ", "expected at most 40,000 levels of nesting");
}

void tst_SceneReader::shouldRefuseValuesWithTheirPlace_data()
{
    addRefusalColumns();
    const QString place = "/overlays/1/children/0/";
    row("element of another type", sceneWith("7"), "/overlays/0", "expected an object, found 7");
    row("no kind", sceneWith(R"({"name": "a"})"), "/overlays/0/kind", "found nothing");
    row("unknown kind", sceneWith(R"({"kind": "cube"})"), "/overlays/0/kind", R"(the text "cube")");
    row("name", overlayWith(R"("name": 1)"), qPrintable(place + "name"), "a text, found 1");
    row("enabled", overlayWith(R"("enabled": "yes")"), qPrintable(place + "enabled"),
        R"(true or false, found the text "yes")");
    row("type", overlayWith(R"("type": "video")"), qPrintable(place + "type"),
        R"("text" or "image")");
    row("text", overlayWith(R"("text": null)"), qPrintable(place + "text"), "found null");
    row("font", overlayWith(R"("font": [])"), qPrintable(place + "font"), "a text");
    row("colour of a name", overlayWith(R"("fontColor": "red")"), qPrintable(place + "fontColor"),
        "a colour");
    row("colour too short", overlayWith(R"("fontColor": "#fff")"), qPrintable(place + "fontColor"),
        "a colour");
    row("colour empty", overlayWith(R"("fontColor": "")"), qPrintable(place + "fontColor"),
        "a colour");
    row("colour with a sign", overlayWith(R"("backgroundColor": "#+12345")"),
        qPrintable(place + "backgroundColor"), "a colour");
    row("colour with a blank", overlayWith(R"("backgroundColor": "# 12345")"),
        qPrintable(place + "backgroundColor"), "a colour");
    row("colour without mark", overlayWith(R"("backgroundTransparency": "1234567")"),
        qPrintable(place + "backgroundTransparency"), "a colour");
    row("image", overlayWith(R"("image": true)"), qPrintable(place + "image"), "found true");
    row("size type", overlayWith(R"("sizeType": 1)"), qPrintable(place + "sizeType"),
        R"("absolute" or "relative")");
    row("size", overlayWith(R"("size": "big")"), qPrintable(place + "size"),
        R"(expected a number, found the text "big")");
    row("size out of range", overlayWith(R"("size": 1e10)"), qPrintable(place + "size"),
        "between -1e9 and 1e9");
    row("position of one", overlayWith(R"("position": [1])"), qPrintable(place + "position"),
        "two numbers, found a list of 1");
    row("position of texts", overlayWith(R"("position": [1, "2"])"),
        qPrintable(place + "position/1"), "a number");
    row("offset out of range", overlayWith(R"("offset": [-2e9, 0])"),
        qPrintable(place + "offset/0"), "between");
    row("children of an overlay", overlayWith(R"("children": [])"), qPrintable(place + "children"),
        "nothing in an overlay");
    row("children of another type", sceneWith(R"({"kind": "group", "children": 1})"),
        "/overlays/0/children", "a list");
}

void tst_SceneReader::shouldRefuseWhatIsNoScene()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, begin);
    QFETCH(QString, part);
    const SceneReading reading = SceneReader::parse(content, "dir/bad.json");
    QVERIFY(!reading.scene);
    const QByteArray error = reading.error.toUtf8();
    QVERIFY2(reading.error.startsWith("dir/bad.json: " + begin), error);
    QVERIFY2(reading.error.contains(part), error);
}

void tst_SceneReader::shouldRefuseWhatIsNoFile()
{
    QTemporaryDir folder;
    const QString missing = folder.filePath("missing.json");
    QCOMPARE(SceneReader::read(missing).error, missing + ": there is no such file");
    QVERIFY(SceneReader::read(folder.path()).error.contains("found a folder"));
    QVERIFY(SceneReader::read("/dev/null").error.contains("found a device"));
}

void tst_SceneReader::shouldRefuseAFileThatIsTooLarge()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("large.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(viewer::sceneformat::MaxBytes + 1)); // sparse: takes no room
    const SceneReading reading = SceneReader::read(file.fileName());
    QVERIFY(!reading.scene);
    QVERIFY2(reading.error.contains("expected at most"), qPrintable(reading.error));
}

void tst_SceneReader::shouldNotNameAllLevelsOfADeepPlace()
{
    const SceneReading reading =
        SceneReader::parse(nested(viewer::sceneformat::MaxLevels + 1), "x.json");
    QVERIFY(reading.error.size() < 500);
}

KX_TEST_MAIN(tst_SceneReader)
#include "tst_SceneReader.moc"
