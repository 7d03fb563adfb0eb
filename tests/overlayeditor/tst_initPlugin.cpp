// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxShortcut.h"
#include "kit/HostFixture.h"
#include "tests/support/KxTest.h"

#include <QLibrary>
#include <QTreeView>

#include <stdexcept>

/// The plug-in file as an application uses it: loaded with local binding into a program that holds
/// nothing of the module, and entered through its one function.
class tst_initPlugin : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldLeaveNothingBehindWhenItsConstructionFails();
    void shouldBuildOneEditorFromTheApplicationsServices();

private:
    QLibrary m_library{QStringLiteral(KX_PLUGIN_FILE)};
    QFunctionPointer m_entry = nullptr;
};

void tst_initPlugin::initTestCase()
{
    QCOMPARE(m_library.loadHints() & QLibrary::ExportExternalSymbolsHint, QLibrary::LoadHints());
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    m_entry = m_library.resolve("initPlugin");
    QVERIFY(m_entry);
}

void tst_initPlugin::shouldLeaveNothingBehindWhenItsConstructionFails()
{
    HostFixture host;
    host.throwAt("platform.getScaleFactorY");
    QVERIFY_EXCEPTION_THROWN(m_entry(), std::runtime_error);
    QCOMPARE(host.registrations().size(), 1);
    QVERIFY(host.registrations().first().window.isNull());
    QCOMPARE(host.service().receivers(SIGNAL(nodesAdded(QRPC::NodeList))), 0);
    QVERIFY(kxShortcut::registeredKeys().isEmpty());
}

/// The editor lives until the process exits, so that one function must hold all that it does.
void tst_initPlugin::shouldBuildOneEditorFromTheApplicationsServices()
{
    HostFixture host;
    m_entry();
    QCOMPARE(host.log().count("controller.isHeadless"), 1);
    QCOMPARE(host.registrations().size(), 1);
    const QWidget *window = host.registrations().first().window;
    QCOMPARE(host.registrations().first().name, QString("Overlay Editor"));
    QCOMPARE(QByteArray(window->metaObject()->className()), QByteArray("kxOverlayEditorGUIW"));
    QCOMPARE(kxShortcut::registeredKeys().size(), 10);

    host.log().clear();
    m_entry();
    m_entry();
    QCOMPARE(host.log().lines(), QStringList());
    QCOMPARE(host.registrations().size(), 1);
    QCOMPARE(host.mainWindow().findChildren<QTreeView *>().size(), 1);
    QCOMPARE(kxShortcut::registeredKeys().size(), 10);
    QCOMPARE(host.service().receivers(SIGNAL(nodesAdded(QRPC::NodeList))), 1);

    host.service().build("g2(a3 b4)");
    Q_EMIT host.service().modelReset();
    QCOMPARE(window->findChild<QTreeView *>()->model()->rowCount(), 1);
}

KX_TEST_MAIN(tst_initPlugin)
#include "tst_initPlugin.moc"
