// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXImageFileDialog.h"
#include "tests/support/KxTest.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

namespace {

QString filters()
{
    return QStringLiteral("Images (*.png *.jpg);;Only PNG (*.png);;All files (*)");
}

/// Does something with the dialog as soon as it is open, from inside its own event loop.
class WhenOpen : public QObject
{
public:
    explicit WhenOpen(std::function<void(QKXImageFileDialog *)> act) : m_act(std::move(act))
    {
        m_timer.start(10);
        connect(&m_timer, &QTimer::timeout, this, &WhenOpen::look);
    }

private:
    void look()
    {
        auto *dialog = qobject_cast<QKXImageFileDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        m_timer.stop();
        m_act(dialog);
    }

    QTimer m_timer;
    std::function<void(QKXImageFileDialog *)> m_act;
};

QString textOf(const QKXImageFileDialog &dialog, const char *label)
{
    return dialog.findChild<QLabel *>(QLatin1String(label))->text();
}

} // namespace

class tst_QKXImageFileDialog : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldStartInTheGivenFolder();
    void shouldStartWithTheGivenFileSelected();
    void shouldStartInTheNearestFolderThatExists();
    void shouldPreviewTheCurrentFile();
    void shouldSayWhatIsWrongWithTheCurrentFile();
    void shouldPreviewNothingForAFolder();
    void shouldTakeOneExistingFile();
    void shouldGiveThePathAndTheFilterThatWereChosen();
    void shouldGiveNothingWhenCancelled();
    void shouldDoWithoutFilterAndItsResult();
    void shouldSurviveTheEndOfItsParent();

private:
    QString path(const char *name) const { return m_dir.filePath(QLatin1String(name)); }

    QTemporaryDir m_dir;
};

void tst_QKXImageFileDialog::initTestCase()
{
    QImage image(60, 30, QImage::Format_RGB32);
    image.fill(Qt::green);
    QVERIFY(image.save(path("green.png")) && image.save(path("other.png")));
    QFile text(path("text.png"));
    QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no image") > 0);
}

void tst_QKXImageFileDialog::shouldStartInTheGivenFolder()
{
    const QKXImageFileDialog dialog(nullptr, QStringLiteral("Load"), m_dir.path(), filters());
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Load"));
    QCOMPARE(dialog.directory().canonicalPath(), QDir(m_dir.path()).canonicalPath());
    QCOMPARE(dialog.nameFilters(), filters().split(QStringLiteral(";;")));
    QCOMPARE(textOf(dialog, "previewName"), QStringLiteral("No image selected"));
}

void tst_QKXImageFileDialog::shouldStartWithTheGivenFileSelected()
{
    const QKXImageFileDialog dialog(nullptr, QString(), path("green.png"), filters());
    QCOMPARE(dialog.directory().canonicalPath(), QDir(m_dir.path()).canonicalPath());
    QCOMPARE(dialog.selectedFiles(), QStringList(path("green.png")));
    QCOMPARE(textOf(dialog, "previewName"), QStringLiteral("green.png"));
}

void tst_QKXImageFileDialog::shouldStartInTheNearestFolderThatExists()
{
    const QKXImageFileDialog dialog(nullptr, QString(), path("gone/away/missing.png"), filters());
    QCOMPARE(dialog.directory().canonicalPath(), QDir(m_dir.path()).canonicalPath());
}

void tst_QKXImageFileDialog::shouldPreviewTheCurrentFile()
{
    QKXImageFileDialog dialog(nullptr, QString(), m_dir.path(), filters());
    dialog.show();
    Q_EMIT dialog.currentChanged(path("green.png"));
    QCOMPARE(textOf(dialog, "previewName"), QStringLiteral("green.png"));
    QVERIFY(textOf(dialog, "previewText").startsWith(QStringLiteral("60 × 30 pixels, ")));
    const QString bytes = QLocale().formattedDataSize(QFileInfo(path("green.png")).size());
    QVERIFY(textOf(dialog, "previewText").endsWith(bytes));
    auto *view = dialog.findChild<QWidget *>(QStringLiteral("previewImage"));
    const QImage shown = view->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::green));
}

void tst_QKXImageFileDialog::shouldSayWhatIsWrongWithTheCurrentFile()
{
    QKXImageFileDialog dialog(nullptr, QString(), m_dir.path(), filters());
    Q_EMIT dialog.currentChanged(path("text.png"));
    QCOMPARE(textOf(dialog, "previewName"), QStringLiteral("text.png"));
    QVERIFY(textOf(dialog, "previewText").contains(QStringLiteral("cannot be read")));
}

void tst_QKXImageFileDialog::shouldPreviewNothingForAFolder()
{
    QKXImageFileDialog dialog(nullptr, QString(), path("green.png"), filters());
    Q_EMIT dialog.currentChanged(m_dir.path());
    QCOMPARE(textOf(dialog, "previewName"), QStringLiteral("No image selected"));
    QCOMPARE(textOf(dialog, "previewText"), QString());
}

void tst_QKXImageFileDialog::shouldTakeOneExistingFile()
{
    const QKXImageFileDialog dialog(nullptr, QString(), QString(), QString());
    QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
    QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
    QVERIFY(dialog.testOption(QFileDialog::DontUseNativeDialog));
}

void tst_QKXImageFileDialog::shouldGiveThePathAndTheFilterThatWereChosen()
{
    WhenOpen choose([](QKXImageFileDialog *dialog) {
        auto *types = dialog->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
        types->setCurrentIndex(2);
        QMetaObject::invokeMethod(types, "activated", Q_ARG(int, 2));
        QTest::keyClick(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")),
                        Qt::Key_Return);
    });
    int filter = -1;
    QCOMPARE(QKXImageFileDialog::getOpenFileNameExternalProc(nullptr, QString(), path("green.png"),
                                                             filters(), &filter),
             path("green.png"));
    QCOMPARE(filter, 2);
}

void tst_QKXImageFileDialog::shouldGiveNothingWhenCancelled()
{
    WhenOpen cancel([](QKXImageFileDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    int filter = -1;
    QCOMPARE(QKXImageFileDialog::getOpenFileNameExternalProc(nullptr, QString(), path("green.png"),
                                                             filters(), &filter),
             QString());
    QCOMPARE(filter, -1);
}

void tst_QKXImageFileDialog::shouldDoWithoutFilterAndItsResult()
{
    WhenOpen accept([](QKXImageFileDialog *dialog) {
        QTest::keyClick(dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")),
                        Qt::Key_Return);
    });
    QCOMPARE(QKXImageFileDialog::getOpenFileNameExternalProc(nullptr, QString(), path("green.png"),
                                                             QString(), nullptr),
             path("green.png"));
}

void tst_QKXImageFileDialog::shouldSurviveTheEndOfItsParent()
{
    auto *parent = new QWidget;
    WhenOpen close([parent](QKXImageFileDialog *) { delete parent; });
    QCOMPARE(QKXImageFileDialog::getOpenFileNameExternalProc(parent, QString(), path("green.png"),
                                                             filters(), nullptr),
             QString());
}

KX_TEST_MAIN(tst_QKXImageFileDialog)
#include "tst_QKXImageFileDialog.moc"
