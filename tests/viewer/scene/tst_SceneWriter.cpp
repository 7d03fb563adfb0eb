// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/FullDisk.h"
#include "tests/viewer/scene/ServiceTest.h"
#include "viewer/scene/SceneFormat.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"

#include <QTemporaryDir>

#include <limits>

using QRPC::NodeId;
using viewer::Scene;
using viewer::SceneReader;
using viewer::SceneReading;
using viewer::SceneWriter;
using viewer::SceneWriting;

class tst_SceneWriter : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteTheDocumentedForm();
    void shouldComeBackByteForByte();
    void shouldKeepUnknownKeys();
    void shouldKeepEveryValue();
    void shouldWriteNumbersWithoutExponent_data();
    void shouldWriteNumbersWithoutExponent();
    void shouldReplaceNumbersThatTheFormatDoesNotKnow();
    void shouldWriteImagesRelativeToTheFile();
    void shouldWriteDeepTreesInLinearRoom();
    void shouldRefuseTreesThatTheReaderRefuses();
    void shouldKeepTheOldFileWhenWritingFails();
    void shouldKeepTheOldFileWhenTheDiskIsFull();

private:
    static QByteArray written(const Scene &scene, const QString &path = "/s/scene.json")
    {
        return SceneWriter::content(scene, path, nullptr);
    }
};

void tst_SceneWriter::shouldWriteTheDocumentedForm()
{
    open("a g-(s{})");
    QCOMPARE(QString::fromUtf8(written(scene())), QString::fromUtf8(R"({
  "format": "overlay-scene",
  "version": 1,
  "overlays": [
    {
      "kind": "overlay",
      "name": "a",
      "enabled": true,
      "type": "text",
      "text": "",
      "font": "DejaVu Sans",
      "fontColor": "#ffffff",
      "backgroundColor": "#000000",
      "backgroundTransparency": "#808080",
      "image": "",
      "sizeType": "absolute",
      "size": 24,
      "position": [0.5, 0.5],
      "offset": [0, 0]
    },
    {
      "kind": "group",
      "name": "g",
      "enabled": false,
      "children": [
        {
          "kind": "switch",
          "name": "s",
          "enabled": true,
          "children": []
        }
      ]
    }
  ]
}
)"));
}

void tst_SceneWriter::shouldComeBackByteForByte()
{
    open("a g-(b s{c- d e-}) f-");
    service().setText(ids("b"), QString::fromUtf8("\"quoted\"\n\\ \t é 漢 😀"));
    service().setFontColor(ids("c"), QColor(1, 2, 3, 4));
    service().setBackgroundColor(ids("d"), QColor());
    service().setSize(ids("e"), 0.1F);
    service().setPosition(ids("f"), QPointF(1.0 / 3, -0.0));
    service().setOffset(ids("a"), QPointF(1e-7, 123456789.125));
    service().setImage(ids("a"), "/s/pictures/x.png");
    const QByteArray first = written(scene());
    const SceneReading reading = SceneReader::parse(first, "/s/scene.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QCOMPARE(written(*reading.scene), first);
}

void tst_SceneWriter::shouldKeepUnknownKeys()
{
    const QByteArray content = R"({"author": {"name": "A", "years": [1, 2.5]},
        "format": "overlay-scene", "version": 1, "overlays": [
        {"kind": "group", "col\"our": null, "text": "of a group", "children": [
            {"kind": "overlay", "shadow": {"blur": 3, "on": true}}]}]})";
    const SceneReading reading = SceneReader::parse(content, "/s/scene.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    const QByteArray first = written(*reading.scene);
    QVERIFY(first.contains(R"("author": {"name":"A","years":[1,2.5]})"));
    QVERIFY(first.contains(R"("col\"our": null)"));
    QVERIFY(first.contains(R"("text": "of a group")"));
    QVERIFY(first.contains(R"("shadow": {"blur":3,"on":true})"));
    QCOMPARE(written(*SceneReader::parse(first, "/s/scene.json").scene), first);
    open("");
    service().setScene(*reading.scene);
    const NodeId group = service().getChild(service().getRootNode(), 0);
    service().duplicateNodes({group});
    QCOMPARE(written(scene()).count("shadow"), 2);
}

void tst_SceneWriter::shouldKeepEveryValue()
{
    open("a");
    service().setOverlayType(ids("a"), 1);
    service().setText(ids("a"), "t");
    service().setFont(ids("a"), "F");
    service().setFontColor(ids("a"), QColor(1, 2, 3));
    service().setBackgroundColor(ids("a"), QColor(4, 5, 6));
    service().setBackgroundTransparency(ids("a"), QColor(7, 8, 9));
    service().setImage(ids("a"), "/p/x.png");
    service().setSizeType(ids("a"), 1);
    service().setSize(ids("a"), 0.3F);
    service().setPosition(ids("a"), QPointF(0, 1));
    service().setOffset(ids("a"), QPointF(-1, 2.25));
    const viewer::Overlay before = scene().find(id("a"))->overlay;
    service().setScene(*SceneReader::parse(written(scene()), "/s/scene.json").scene);
    const viewer::Overlay after = scene().find(id("a"))->overlay;
    QCOMPARE(after.type, before.type);
    QCOMPARE(after.text, before.text);
    QCOMPARE(after.font, before.font);
    QCOMPARE(after.fontColor, before.fontColor);
    QCOMPARE(after.backgroundColor, before.backgroundColor);
    QCOMPARE(after.backgroundTransparency, before.backgroundTransparency);
    QCOMPARE(after.image, before.image);
    QCOMPARE(after.sizeType, before.sizeType);
    QVERIFY(after.size == before.size);
    QCOMPARE(after.position, before.position);
    QCOMPARE(after.offset, before.offset);
}

void tst_SceneWriter::shouldWriteNumbersWithoutExponent_data()
{
    QTest::addColumn<float>("size");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("whole") << 100000.0F << QByteArray("100000");
    QTest::newRow("fraction") << 12.7F << QByteArray("12.7");
    QTest::newRow("small") << 1e-6F << QByteArray("0.000001");
    QTest::newRow("negative zero") << -0.0F << QByteArray("0");
}

void tst_SceneWriter::shouldWriteNumbersWithoutExponent()
{
    QFETCH(float, size);
    QFETCH(QByteArray, text);
    open("a");
    service().setSize(ids("a"), size);
    QVERIFY(written(scene()).contains("\"size\": " + text + ",\n"));
}

void tst_SceneWriter::shouldReplaceNumbersThatTheFormatDoesNotKnow()
{
    open("a b");
    service().setSize(ids("a"), std::numeric_limits<float>::quiet_NaN());
    service().setOffset(ids("b"), QPointF(std::numeric_limits<double>::infinity(), -1e300));
    QStringList warnings;
    const QByteArray content = SceneWriter::content(scene(), "/s/scene.json", &warnings);
    QCOMPARE(warnings.size(), 3);
    QVERIFY(warnings.constFirst().contains("\"a\""));
    QVERIFY(content.contains("\"size\": 0,"));
    QVERIFY(content.contains("\"offset\": [1000000000, -1000000000]"));
    QVERIFY(SceneReader::parse(content, "/s/scene.json").scene.has_value());
}

void tst_SceneWriter::shouldWriteImagesRelativeToTheFile()
{
    open("a b");
    service().setImage(ids("a"), "/s/pictures/x.png");
    service().setImage(ids("b"), ":/inside.png");
    QVERIFY(written(scene()).contains(R"("image": "pictures/x.png")"));
    QVERIFY(written(scene()).contains(R"("image": ":/inside.png")"));
    QVERIFY(written(scene(), "/s/t/scene.json").contains(R"("image": "../pictures/x.png")"));
}

void tst_SceneWriter::shouldWriteDeepTreesInLinearRoom()
{
    const auto sizeOf = [this](int levels) {
        open("");
        NodeId parent = service().getRootNode();
        for (int level = 0; level < levels; ++level)
            parent = service().createGroup(parent);
        return written(scene()).size();
    };
    const int small = sizeOf(1000);
    QVERIFY(sizeOf(10000) < 11 * small);
    const SceneReading reading = SceneReader::parse(written(scene()), "/s/scene.json");
    QVERIFY2(reading.scene.has_value(), qPrintable(reading.error));
    QCOMPARE(written(*reading.scene), written(scene()));
}

void tst_SceneWriter::shouldKeepTheOldFileWhenWritingFails()
{
    QTemporaryDir folder;
    open("a");
    const QString path = folder.filePath("scene.json");
    QVERIFY(SceneWriter::write(scene(), path).isWritten());
    QCOMPARE(scenetext::dump(*SceneReader::read(path).scene), QString("a"));
    QVERIFY(QDir(folder.path()).mkdir("taken"));
    const SceneWriting writing = SceneWriter::write(scene(), folder.filePath("taken"));
    QVERIFY(!writing.isWritten());
    QVERIFY(writing.error.startsWith(folder.filePath("taken")));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("scene.json"));
    QVERIFY(!SceneWriter::write(scene(), folder.filePath("no/such/folder.json")).isWritten());
}

void tst_SceneWriter::shouldKeepTheOldFileWhenTheDiskIsFull()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("scene.json");
    open("a");
    QVERIFY(SceneWriter::write(scene(), path).isWritten());
    open("a b c");
    const auto write = [&] {
        const FullDisk disk(rlim_t(written(scene(), path).size()) - 1);
        return SceneWriter::write(scene(), path);
    };
    const SceneWriting writing = write();
    QVERIFY(!writing.isWritten());
    QVERIFY(writing.error.startsWith(path));
    QCOMPARE(scenetext::dump(*SceneReader::read(path).scene), QString("a"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("scene.json"));
}

void tst_SceneWriter::shouldRefuseTreesThatTheReaderRefuses()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("deep.json");
    open("");
    NodeId parent = Scene::RootId;
    for (int level = 1; level <= viewer::sceneformat::MaxLevels; ++level)
        parent = service().createGroup(parent);
    QVERIFY(SceneWriter::write(scene(), path).isWritten());
    service().createGroup(parent);
    const SceneWriting refused = SceneWriter::write(scene(), path);
    QVERIFY2(refused.error.contains("levels"), qPrintable(refused.error));
    const SceneReading kept = SceneReader::read(path);
    QVERIFY2(kept.scene, qPrintable(kept.error));
}

KX_TEST_MAIN(tst_SceneWriter)
#include "tst_SceneWriter.moc"
