// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealInput.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/Viewport.h"

#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTemporaryDir>

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

/// What one key costs while a thousand overlays are selected.
class tst_viewer_typing : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldSendAndPaintOncePerKey();

private:
    void selectAll();
    void pressAndCount();

    QTemporaryDir m_folder;
};

void tst_viewer_typing::shouldSendAndPaintOncePerKey()
{
    QVERIFY(start({writeScene(m_folder.path())}));
    selectAll();
    pressAndCount();
}

void tst_viewer_typing::selectAll()
{
    clickRow(tree()->model()->index(0, 0));
    QTRY_VERIFY(tree()->hasFocus());
    realInput::key("ctrl+a");
    QTRY_COMPARE(tree()->selectionModel()->selectedRows().size(), 1000);
}

void tst_viewer_typing::pressAndCount()
{
    auto *field = session()->window()->findChild<QPlainTextEdit *>("_text_edit");
    realInput::click(*field, field->rect().center());
    QTRY_VERIFY(field->hasFocus());
    realInput::key("End");
    auto *layer = session()->window()->findChild<OverlayLayer *>();
    QVERIFY(layer && layer->isVisible());
    Viewport *background = session()->window()->viewArea()->viewport();
    QVERIFY(background);
    QTRY_VERIFY(!field->document()->toPlainText().isEmpty());
    const QString before = field->document()->toPlainText();

    // The next key is announced once, with every node, and drawn once, however long one waits;
    // the 3D view keeps its own picture.
    for (const QString &key : {QStringLiteral("x"), QStringLiteral("y")}) {
        QSignalSpy announced(&service(), &kxOverlayService::textChanged);
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
