// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/EditorTest.h"

#include <thread>

/// Which signal of the service refreshes what.
class tst_kxOverlayEditor_wiring : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldConnectEverySignalOfTheService_data();
    void shouldConnectEverySignalOfTheService();
    void shouldRefreshWhatASignalNames_data();
    void shouldRefreshWhatASignalNames();
    void shouldRefreshAPropertyOnceForOneSignal();
    void shouldRefreshFromAnotherThread();

private:
    /// What was asked about properties since the log was emptied, without what tells whether the
    /// selection has the property.
    QStringList askedProperties();
};

QStringList tst_kxOverlayEditor_wiring::askedProperties()
{
    QStringList asked;
    for (const QString &line : log().take()) {
        const QString operation = line.section(' ', 0, 0);
        if (operation.startsWith("get") && operation != "getRootNode"
            && operation != "getOverlayType" && !asked.contains(operation))
            asked.append(operation);
    }
    return asked;
}

void tst_kxOverlayEditor_wiring::shouldConnectEverySignalOfTheService_data()
{
    QTest::addColumn<int>("receivers");
    for (const char *name :
         {"nodesCreated", "overlayTypeChanged", "textChanged", "fontChanged", "fontColorChanged",
          "backgroundColorChanged", "backgroundTransparencyChanged", "imageChanged",
          "sizeTypeChanged", "sizeChanged", "positionChanged", "offsetChanged", "nodesAdded",
          "enabledStateChanged"})
        QTest::newRow(name) << 1;
    // the model's and the editor's
    QTest::newRow("nodesRemoved") << 2;
    QTest::newRow("nameChanged") << 2;
}

void tst_kxOverlayEditor_wiring::shouldConnectEverySignalOfTheService()
{
    QFETCH(int, receivers);
    openEditor();
    const QByteArray signal =
        QByteArray::number(QSIGNAL_CODE) + QTest::currentDataTag() + "(QRPC::NodeList)";
    QCOMPARE(service().receivers(signal.constData()), receivers);
}

void tst_kxOverlayEditor_wiring::shouldRefreshWhatASignalNames_data()
{
    QTest::addColumn<QStringList>("asked");
    QTest::newRow("overlayTypeChanged") << QStringList{};
    QTest::newRow("nameChanged") << QStringList{"getName"};
    QTest::newRow("textChanged") << QStringList{"getText"};
    QTest::newRow("fontChanged") << QStringList{"getFont"};
    QTest::newRow("fontColorChanged") << QStringList{"getFontColor"};
    QTest::newRow("backgroundColorChanged") << QStringList{"getBackgroundColor"};
    QTest::newRow("backgroundTransparencyChanged") << QStringList{"getBackgroundTransparency"};
    QTest::newRow("imageChanged") << QStringList{"getImage"};
    QTest::newRow("sizeTypeChanged") << QStringList{"getSizeType", "getSize"};
    QTest::newRow("sizeChanged") << QStringList{"getSize", "getSizeType"};
    QTest::newRow("positionChanged") << QStringList{"getPosition"};
    QTest::newRow("offsetChanged") << QStringList{"getOffset"};
    QTest::newRow("enabledStateChanged") << QStringList{};
}

/// Whatever nodes the signal lists, the selection is what is read.
void tst_kxOverlayEditor_wiring::shouldRefreshWhatASignalNames()
{
    QFETCH(QStringList, asked);
    openEditor("a2 b3");
    select({2, 3});
    QVERIFY(QMetaObject::invokeMethod(&service(), QTest::currentDataTag(),
                                      Q_ARG(QRPC::NodeList, QRPC::NodeList{99})));
    const int types = log().count("getOverlayType");
    QCOMPARE(askedProperties(), asked);
    if (QByteArray(QTest::currentDataTag()) == "overlayTypeChanged")
        QVERIFY(types > 0);
}

void tst_kxOverlayEditor_wiring::shouldRefreshAPropertyOnceForOneSignal()
{
    openEditor("a2 b3 c4");
    select({2, 3});
    // the value of the first node, then each node's against it
    service().setFontColor({2, 3}, Qt::red);
    QCOMPARE(log().linesOf({"getFontColor"}),
             (QStringList{"getFontColor 2", "getFontColor 2", "getFontColor 3"}));
    QCOMPARE(log().count("getText"), 0);
    log().clear();
    service().setOffsetX({2, 3}, 5.0F);
    QCOMPARE(log().count("getOffset"), 2 * 3);
    service().setOffsetY({2, 3}, 7.0F);
    QCOMPARE(log().count("getOffset"), 4 * 3);
}

void tst_kxOverlayEditor_wiring::shouldRefreshFromAnotherThread()
{
    openEditor("a2");
    select({2});
    service().node(2).text = "new";
    std::thread other([this] { Q_EMIT service().textChanged({2}); });
    other.join();
    QCOMPARE(log().count("getText"), 0);
    QTRY_COMPARE(window()._text_edit->toPlainText(), QString("new"));
}

KX_TEST_MAIN(tst_kxOverlayEditor_wiring)
#include "tst_kxOverlayEditor_wiring.moc"
