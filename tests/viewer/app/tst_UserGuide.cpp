// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/UserGuide.h"

#include "tests/support/KxTest.h"
#include "viewer/app/GuideWindow.h"

#include <QAbstractTextDocumentLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>

using namespace viewer;

namespace {

const char *const Text =
    "# Guide\n\nSee [the second](#the-second-part).\n\n"
    "<!-- help: One -->\n## First (part)\n\n```\n# no heading\n```\n\n"
    "<!-- help: Two -->\n<!-- help: Also_Two -->\n## The second part\n\ntext\n\n"
    "### Below `it`\n";

} // namespace

class tst_UserGuide : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameItsHeadings();
    void shouldKeepTheTextFreeOfIdentifiers();
    void shouldKeepParagraphsApart();
    void shouldFitPicturesToThePage();
    void shouldReadEachPictureOnce();
    void shouldShowEachPictureOnce();
    void shouldLeaveNoGapBelowPictures();
    void shouldGoToAPage_data();
    void shouldGoToAPage();
    void shouldFollowALinkToAHeading();
    void shouldReturnToThePageItShowedLast();
    void shouldSayThatThereIsNoGuide();

private:
    static QString longGuide(const QTemporaryDir &folder);
    static QString headingAtTheTop(const QTextBrowser &text);
};

void tst_UserGuide::shouldNameItsHeadings()
{
    const UserGuide guide(Text, QString());
    QStringList all;
    for (const UserGuide::Heading &heading : guide.headings())
        all.append(QStringLiteral("%1 %2: %3")
                       .arg(heading.level)
                       .arg(heading.text, heading.anchors.join(' ')));
    QCOMPARE(all, QStringList({"1 Guide: guide", "2 First (part): first-part One",
                               "2 The second part: the-second-part Two Also_Two",
                               "3 Below it: below-it"}));
    QVERIFY(guide.hasAnchor("Two"));
    QVERIFY(!guide.hasAnchor("Three"));
}

void tst_UserGuide::shouldKeepTheTextFreeOfIdentifiers()
{
    const UserGuide guide(Text, QString());
    const QString text = guide.toPlainText();
    QVERIFY2(text.contains("First (part)\n"), qPrintable(text));
    for (const char *hidden : {"One", "Two", "help", "\ue000"})
        QVERIFY2(!text.contains(hidden), hidden);
}

void tst_UserGuide::shouldKeepParagraphsApart()
{
    const UserGuide guide("# Guide\n\none\n\ntwo\n\n## Part\n\n| a |\n|---|\n| b |\n", QString());
    const QTextBlock one = guide.find("one").block();
    QVERIFY(one.blockFormat().bottomMargin() > 0);
    QVERIFY(guide.find("Part").blockFormat().topMargin() > one.blockFormat().bottomMargin());
    QCOMPARE(guide.rootFrame()->childFrames().size(), 1);
    const auto *table = qobject_cast<QTextTable *>(guide.rootFrame()->childFrames().constFirst());
    QVERIFY(table->format().borderCollapse());
    QVERIFY(table->format().cellPadding() > 0);
}

void tst_UserGuide::shouldFitPicturesToThePage()
{
    const QTemporaryDir folder;
    QImage picture(1600, 400, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(folder.filePath("wide.png")));
    QVERIFY(picture.scaledToWidth(100).save(folder.filePath("narrow.png")));
    const UserGuide guide("![wide](wide.png)\n", folder.path());
    const auto size = [&guide](const char *name) {
        return guide.resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>().size();
    };
    QCOMPARE(size("wide.png"), QSize(640, 160));
    QCOMPARE(size("narrow.png"), QSize(100, 25));
}

void tst_UserGuide::shouldReadEachPictureOnce()
{
    const QTemporaryDir folder;
    QImage picture(10, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(folder.filePath("a.png")));
    const UserGuide guide("![a](a.png)\n", folder.path());
    const auto read = [&guide] {
        return guide.resource(QTextDocument::ImageResource, QUrl("a.png")).value<QImage>();
    };
    QCOMPARE(read().size(), QSize(10, 10));
    QVERIFY(QFile::remove(folder.filePath("a.png")));
    QCOMPARE(read().size(), QSize(10, 10));
}

void tst_UserGuide::shouldShowEachPictureOnce()
{
    const UserGuide guide("# Guide\n\n![one, which\nhas long\nwords](a.png) ![two](b.png)\n",
                          QString());
    QCOMPARE(guide.toPlainText().count(QChar::ObjectReplacementCharacter), 2);
}

void tst_UserGuide::shouldLeaveNoGapBelowPictures()
{
    const QTemporaryDir folder;
    QImage picture(10, 500, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QVERIFY(picture.save(folder.filePath("a.png")));
    const UserGuide guide("![a](a.png)\n\nwords\n", folder.path());
    const QTextBlock words = guide.lastBlock();
    const auto top = [&guide](const QTextBlock &block) {
        return guide.documentLayout()->blockBoundingRect(block).top();
    };
    const qreal room = top(words) - top(words.previous());
    QVERIFY2(room >= 500 && room < 540, qPrintable(QString::number(room)));
    QVERIFY(words.blockFormat().lineHeight() > 100);
}

/// Ten pages, each longer than the window.
QString tst_UserGuide::longGuide(const QTemporaryDir &folder)
{
    QFile file(folder.filePath("guide.md"));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write("# Guide\n\n[go](#page-4)\n\n");
    for (int page = 1; page <= 10; ++page) {
        file.write(QStringLiteral("<!-- help: Id_%1 -->\n## Page %1\n\n").arg(page).toUtf8());
        file.write(QByteArray("words\n\n").repeated(60));
    }
    return file.fileName();
}

/// The last heading that stands above or near the upper edge.
QString tst_UserGuide::headingAtTheTop(const QTextBrowser &text)
{
    const int edge = text.verticalScrollBar()->value() + 50;
    QString heading;
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
        const qreal top = text.document()->documentLayout()->blockBoundingRect(block).top();
        if (block.blockFormat().headingLevel() > 0 && top < edge)
            heading = block.text();
    }
    return heading;
}

void tst_UserGuide::shouldGoToAPage_data()
{
    QTest::addColumn<QString>("anchor");
    QTest::addColumn<QString>("page");
    QTest::newRow("help identifier") << "Id_7"
                                     << "Page 7";
    QTest::newRow("words of a heading") << "page-3"
                                        << "Page 3";
    QTest::newRow("unknown") << "Nothing"
                             << "Guide";
    QTest::newRow("none") << ""
                          << "Guide";
}

void tst_UserGuide::shouldGoToAPage()
{
    QFETCH(QString, anchor);
    const QTemporaryDir folder;
    GuideWindow window(longGuide(folder));
    window.show();
    window.goTo("Id_9");
    window.goTo(anchor);
    QTEST(window.findChild<QListWidget *>()->currentItem()->text(), "page");
    QTEST(headingAtTheTop(*window.findChild<QTextBrowser *>()), "page");
}

void tst_UserGuide::shouldFollowALinkToAHeading()
{
    const QTemporaryDir folder;
    GuideWindow window(longGuide(folder));
    window.show();
    emit window.findChild<QTextBrowser *>()->anchorClicked(QUrl("#page-4"));
    QCOMPARE(window.findChild<QListWidget *>()->currentItem()->text(), QString("Page 4"));
}

void tst_UserGuide::shouldReturnToThePageItShowedLast()
{
    const QTemporaryDir folder;
    GuideWindow window(longGuide(folder));
    window.show();
    window.goTo("Id_5");
    QScrollBar *bar = window.findChild<QTextBrowser *>()->verticalScrollBar();
    const int place = bar->value();
    QVERIFY(place > 0);
    bar->setValue(0);
    window.goTo("Id_5");
    QCOMPARE(bar->value(), place);
}

void tst_UserGuide::shouldSayThatThereIsNoGuide()
{
    GuideWindow window{QString()};
    window.goTo("Id_5");
    QVERIFY(window.findChild<QTextBrowser *>()->toPlainText().contains("not installed"));
}

KX_TEST_MAIN(tst_UserGuide)
#include "tst_UserGuide.moc"
