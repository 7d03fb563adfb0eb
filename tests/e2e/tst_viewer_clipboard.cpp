// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealInput.h"

#include <QClipboard>
#include <QProcess>
#include <QTemporaryDir>

/// Two viewers, each a process of its own, and what is copied by key from one into the other.
class tst_viewer_clipboard : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCarryOverlaysFromOneViewerToAnother();

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    bool write(const char *name, const QByteArray &overlays) const;
    QByteArray contentOf(const char *name) const;
    void startOther();
    void activate(const QString &title);

    QTemporaryDir m_folder;
    QProcess m_other;
};

bool tst_viewer_clipboard::write(const char *name, const QByteArray &overlays) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly)
           && file.write(R"({"format": "overlay-scene", "version": 1, "overlays": [)" + overlays
                         + "]}")
                  > 0;
}

QByteArray tst_viewer_clipboard::contentOf(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_viewer_clipboard::startOther()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CONFIG_HOME", m_folder.path());
    m_other.setProcessEnvironment(environment);
    m_other.setProcessChannelMode(QProcess::ForwardedChannels);
    m_other.start(VIEWER_PROGRAM, {"--no-gl", path("other.json")});
    QVERIFY(m_other.waitForStarted());
}

/// Gives the keyboard to the window whose title contains a text, once it is there.
void tst_viewer_clipboard::activate(const QString &title)
{
    QCOMPARE(QProcess::execute("xdotool", {"search", "--sync", "--onlyvisible", "--name", title,
                                           "windowactivate", "--sync"}),
             0);
}

void tst_viewer_clipboard::shouldCarryOverlaysFromOneViewerToAnother()
{
    QVERIFY(write("own.json", R"({"kind": "overlay", "name": "Title", "text": "Title"},)"
                              R"({"kind": "group", "name": "Panel", "children": [)"
                              R"({"kind": "overlay", "name": "Note", "text": "A note"}]})"));
    QVERIFY(write("other.json", R"({"kind": "overlay", "name": "Other", "text": "Other"})"));
    QVERIFY(start({path("own.json"), "--no-gl"}));
    clickRow(rowOf("Panel"));
    QTRY_COMPARE(selectedNames(), QStringList("Panel"));
    realInput::key("ctrl+c");
    QTRY_VERIFY(QApplication::clipboard()->text().contains("A note"));

    startOther();
    activate("other.json");
    realInput::key("ctrl+v");
    realInput::key("ctrl+s");
    QTRY_VERIFY_WITH_TIMEOUT(contentOf("other.json").contains("A note"), 20000);
    photograph("pasted-into-the-other");

    // What was pasted is selected there.
    realInput::key("ctrl+c");
    QTRY_VERIFY(!QApplication::clipboard()->ownsClipboard());
    activate("own.json");
    clickRow(rowOf("Title"));
    QTRY_COMPARE(selectedNames(), QStringList("Title"));
    realInput::key("ctrl+v");
    QTRY_COMPARE(topRows(), QStringList({"Title", "Panel", "Panel"}));
    QTRY_COMPARE(selectedNames(), QStringList("Panel"));
    QCOMPARE(service().getParent(nodeOf("Note")), nodeOf("Panel"));
    photograph("pasted-back");
    realInput::key("ctrl+z");
    QTRY_COMPARE(topRows(), QStringList({"Title", "Panel"}));

    m_other.kill();
    QVERIFY(m_other.waitForFinished());
}

KX_TEST_MAIN(tst_viewer_clipboard)
#include "tst_viewer_clipboard.moc"
