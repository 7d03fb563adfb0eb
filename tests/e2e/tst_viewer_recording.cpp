// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealInput.h"

#include <QClipboard>
#include <QPlainTextEdit>
#include <QProcess>
#include <QTemporaryDir>

/// A session by mouse and keys that is recorded, and its replay without a window.
class tst_viewer_recording : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldComeToTheSameFileWhenReplayed();

private:
    QString path(const char *name) const { return m_folder.filePath(QLatin1String(name)); }
    bool write(const char *name, const QByteArray &content) const;
    QByteArray contentOf(const char *name) const;
    void work();
    void focusRow(int row);

    QTemporaryDir m_folder;
};

bool tst_viewer_recording::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray tst_viewer_recording::contentOf(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_viewer_recording::focusRow(int row)
{
    const QModelIndex index = tree()->model()->index(row, 0);
    clickRow(index);
    QTRY_COMPARE(tree()->currentIndex(), index);
    QTRY_VERIFY(tree()->hasFocus());
}

void tst_viewer_recording::work()
{
    viewer::OverlayService *overlays = session()->overlays();
    const QUndoStack &stack = *overlays->history().stack();
    focusRow(0);
    realInput::key("alt+Down");
    QTRY_COMPARE(overlays->getName(overlays->getChild(1, 1)), QString("Title"));
    focusRow(0);
    auto *text = session()->window()->findChild<QPlainTextEdit *>();
    realInput::click(*text->viewport(), text->viewport()->rect().center());
    QTRY_VERIFY(text->hasFocus());
    realInput::type("Seen and written");
    QTRY_VERIFY(overlays->getText(overlays->getChild(1, 0)).contains("Seen and written"));
    QCOMPARE(stack.count(), 2);
    focusRow(1);
    realInput::key("ctrl+d");
    QTRY_COMPARE(overlays->getChildCount(1), 4);
    realInput::key("ctrl+z");
    QTRY_COMPARE(overlays->getChildCount(1), 3);
    realInput::key("ctrl+shift+z");
    QTRY_COMPARE(overlays->getChildCount(1), 4);
    focusRow(0);
    realInput::key("Delete");
    QTRY_COMPARE(overlays->getChildCount(1), 3);
    realInput::key("ctrl+z");
    QTRY_COMPARE(overlays->getChildCount(1), 4);
    focusRow(1);
    realInput::key("ctrl+c");
    QTRY_VERIFY(QApplication::clipboard()->text().contains("Title"));
    realInput::key("ctrl+v");
    QTRY_COMPARE(overlays->getChildCount(1), 5);
    focusRow(3);
    realInput::key("ctrl+x");
    QTRY_COMPARE(overlays->getChildCount(1), 4);
    session()->runScript(path("own.js"));
    realInput::key("ctrl+z");
    QTRY_COMPARE(overlays->getChildCount(1), 4);
    session()->runScript(path("own.js"));
}

void tst_viewer_recording::shouldComeToTheSameFileWhenReplayed()
{
    QVERIFY(write("a.json",
                  R"({"format": "overlay-scene", "version": 1, "overlays": [)"
                  R"({"kind": "overlay", "name": "Title", "type": "text", "text": "Title"},)"
                  R"({"kind": "overlay", "name": "Note", "type": "text", "text": "Note"},)"
                  R"({"kind": "group", "name": "Panel", "children": []}]})"));
    QVERIFY(QFile::copy(path("a.json"), path("before.json")));
    QVERIFY(write("own.js", "overlays.groupNodes([2, 3]); overlays.createOverlay(1);"
                            "history.undo(); overlays.createSwitch(1);"));
    QVERIFY(start({path("a.json"), "--record", path("r.js")}));
    work();
    QVERIFY(session()->document()->save());

    const int code =
        QProcess::execute(VIEWER_PROGRAM, {"--headless", "--scene", path("before.json"), "--script",
                                           path("r.js"), "--save", path("b.json")});
    QCOMPARE(code, 0);
    QVERIFY(contentOf("a.json").contains("Seen and written"));
    QCOMPARE(contentOf("b.json"), contentOf("a.json"));
}

KX_TEST_MAIN(tst_viewer_recording)
#include "tst_viewer_recording.moc"
