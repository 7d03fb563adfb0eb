// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/viewer/whole/ClippedTexts.h"
#include "tests/viewer/whole/WholeViewer.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

namespace {

const char *const LongText = "a text that is as long as a text can be";

using Maker = std::function<QWidget *()>;

} // namespace

Q_DECLARE_METATYPE(Maker)

/// Every text of the viewer has the room that it needs. Run at several scale factors (QT_SCALE_FACTOR),
/// in several languages (KX_LOCALE) and with a larger font (KX_FONT_PIXELS).
class tst_roomForTexts : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldFindWhatIsClipped_data();
    void shouldFindWhatIsClipped();
    void shouldShowEveryTextWhole();

private:
    int m_pictures = 0;
};

void tst_roomForTexts::initTestCase()
{
    QApplication::setStyle(new kxStyle);
    QFont font = QApplication::font();
    // 9 points, which a desktop has, unless another size is asked for.
    font.setPixelSize(qEnvironmentVariableIsSet("KX_FONT_PIXELS")
                          ? qEnvironmentVariableIntValue("KX_FONT_PIXELS")
                          : 12);
    QApplication::setFont(font);
}

void tst_roomForTexts::shouldFindWhatIsClipped_data()
{
    QTest::addColumn<Maker>("make");
    QTest::newRow("label") << Maker([] { return new QLabel(LongText); });
    QTest::newRow("label of lines") << Maker([] {
        auto *label = new QLabel(LongText);
        label->setWordWrap(true);
        return label;
    });
    QTest::newRow("button") << Maker([] { return new QPushButton(LongText); });
    QTest::newRow("list box") << Maker([] {
        auto *box = new QComboBox;
        box->addItems({"a", LongText});
        return box;
    });
    QTest::newRow("line") << Maker([] {
        auto *line = new QLineEdit;
        line->setPlaceholderText(LongText);
        return line;
    });
    QTest::newRow("pane") << Maker([] {
        auto *pane = new QScrollArea;
        pane->setWidget(new QPushButton(LongText));
        return pane;
    });
}

void tst_roomForTexts::shouldFindWhatIsClipped()
{
    QFETCH(Maker, make);
    QWidget window;
    window.resize(800, 400);
    QWidget *widget = make();
    widget->setParent(&window);
    widget->setGeometry(0, 0, 700, 100);
    window.show();
    QCOMPARE(clippedTexts::of(&window), QStringList());
    widget->resize(80, 30);
    QCoreApplication::processEvents();
    QVERIFY(!clippedTexts::of(&window).isEmpty());
}

void tst_roomForTexts::shouldShowEveryTextWhole()
{
    const QString pictures = qEnvironmentVariable("KX_PICTURES");
    QStringList faults;
    WholeViewer viewer;
    viewer.visitAll([&](const QWidget *window, const QString &what) {
        if (!pictures.isEmpty())
            const_cast<QWidget *>(window)->grab().save(
                QStringLiteral("%1/%2 %3.png")
                    .arg(pictures, QString::number(++m_pictures).rightJustified(2, '0'), what));
        QStringList clipped = clippedTexts::of(window);
        const QSize size = window->size();
        if (size.width() > viewer.display().width() || size.height() > viewer.display().height())
            clipped.append(QStringLiteral("the window itself, of %1 x %2")
                               .arg(size.width())
                               .arg(size.height()));
        for (const QString &text : clipped) {
            if (!faults.contains(text)) {
                faults.append(text);
                qInfo().noquote() << "no room:" << text << '(' + what + ')';
            }
        }
    });
    QCOMPARE(faults.size(), 0);
}

KX_TEST_MAIN(tst_roomForTexts)
#include "tst_roomForTexts.moc"
