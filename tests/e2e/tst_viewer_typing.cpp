// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/support/RealInput.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/ViewerSession.h"
#include "viewer/app/Viewport.h"

#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTreeView>

using namespace viewer;

namespace {

/// Counts how often a widget is painted.
class Paintings : public QObject
{
public:
    explicit Paintings(QWidget *widget) { widget->installEventFilter(this); }

    int count = 0;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return QObject::eventFilter(watched, event);
    }
};

/// A thousand equal texts.
QString writeScene(const QString &folder)
{
    QStringList overlays;
    for (int i = 0; i < 1000; ++i)
        overlays << R"({"kind": "overlay", "name": "Note", "type": "text", "text": "Same"})";
    QFile file(folder + "/scene.json");
    if (file.open(QIODevice::WriteOnly)) {
        file.write(R"({"format": "overlay-scene", "version": 1, "overlays": [)");
        file.write(overlays.join(',').toUtf8() + "]}");
    }
    return file.fileName();
}

} // namespace

/// What one key costs while a thousand overlays are selected. One test function, because the editor
/// of a process is created once.
class tst_viewer_typing : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldSendAndPaintOncePerKey();

private:
    void selectAll(ViewerSession *session);
    void pressAndCount(ViewerSession *session);
};

void tst_viewer_typing::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

void tst_viewer_typing::shouldSendAndPaintOncePerKey()
{
    QTemporaryDir folder;
    const QString scene = writeScene(folder.path());
    const CommandLine line({"overlay-viewer", scene, "--plugin", EDITOR_PLUGIN});
    ViewerSession session(line, nullptr);
    session.start();
    QVERIFY(becomesActive(session.window()));
    selectAll(&session);
    pressAndCount(&session);
}

void tst_viewer_typing::selectAll(ViewerSession *session)
{
    auto *tree = session->window()->findChild<QTreeView *>();
    QVERIFY(tree);
    realInput::click(*tree->viewport(), tree->visualRect(tree->model()->index(0, 0)).center());
    QTRY_VERIFY(tree->hasFocus());
    realInput::key("ctrl+a");
    QTRY_COMPARE(tree->selectionModel()->selectedRows().size(), 1000);
}

void tst_viewer_typing::pressAndCount(ViewerSession *session)
{
    auto *field = session->window()->findChild<QPlainTextEdit *>("_text_edit");
    realInput::click(*field, field->rect().center());
    QTRY_VERIFY(field->hasFocus());
    realInput::key("End");
    auto *layer = session->window()->findChild<OverlayLayer *>();
    QVERIFY(layer && layer->isVisible());
    Viewport *background = session->window()->viewArea()->viewport();
    QVERIFY(background);
    QTRY_VERIFY(!field->document()->toPlainText().isEmpty());
    const QString before = field->document()->toPlainText();

    // The next key is announced once, with every node, and drawn once, however long one waits;
    // the 3D view keeps its own picture.
    for (const QString &key : {QStringLiteral("x"), QStringLiteral("y")}) {
        QSignalSpy announced(session->overlays(), &kxOverlayService::textChanged);
        const Paintings backgrounds(background);
        const Paintings paintings(layer);
        realInput::key(key);
        QTRY_COMPARE(announced.size(), 1);
        QCOMPARE(announced.first().first().value<QRPC::NodeList>().size(), 1000);
        QTRY_COMPARE(paintings.count, 1);
        realInput::key(
            "Right"); // by the time this one has moved the cursor all that follows is over
        QTRY_VERIFY(field->textCursor().atEnd());
        QCOMPARE(announced.size(), 1);
        QCOMPARE(paintings.count, 1);
        QCOMPARE(backgrounds.count, 0);
    }
    QCOMPARE(field->document()->toPlainText(), before + "xy");
}

KX_TEST_MAIN(tst_viewer_typing)
#include "tst_viewer_typing.moc"
