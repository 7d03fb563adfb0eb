// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/FileQuestions.h"

#include "tests/support/KxTest.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>

using namespace viewer;
using Answer = FileQuestions::Answer;
Q_DECLARE_METATYPE(viewer::FileQuestions::Answer)

namespace {

/// Marks the texts of the questions, so that those of the desktop can be told from them.
class Marks : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "viewer::FileQuestions") == 0 ? '*' + QString(source) : QString();
    }
    bool isEmpty() const override { return false; }
};

using Ask = std::function<Answer(FileQuestions *)>;

} // namespace

Q_DECLARE_METATYPE(Ask)

/// The dialogs themselves: what each button means, and which one a key that is pressed too soon takes.
class tst_FileQuestions : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAnswerAsTheButtonSays_data();
    void shouldAnswerAsTheButtonSays();
    void shouldLoseNothingByAKey_data();
    void shouldLoseNothingByAKey();
    void shouldSayWhatIsThrownAway();
    void shouldNameASceneAsOne();

private:
    template<class Dialog>
    void whenShown(const std::function<void(Dialog *)> &act);
};

/// Once a modal dialog has a loop of its own.
template<class Dialog>
void tst_FileQuestions::whenShown(const std::function<void(Dialog *)> &act)
{
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, timer, [timer, act] {
        auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer->deleteLater();
        timer->stop();
        act(dialog);
    });
    timer->start(1);
}

static Answer askAboutChanges(FileQuestions *questions)
{
    return questions->aboutChanges("a.json");
}

static Answer askAboutRecovery(FileQuestions *questions)
{
    return questions->aboutRecovery("a.json", "now");
}

/// Save stands for yes, Cancel for no.
static Answer askToOverwrite(FileQuestions *questions)
{
    return questions->mayOverwrite("a.json") ? Answer::Save : Answer::Cancel;
}

void tst_FileQuestions::shouldAnswerAsTheButtonSays_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<int>("button");
    QTest::addColumn<FileQuestions::Answer>("answer");
    const QPair<const char *, Ask> three[] = {{"changes", askAboutChanges},
                                              {"recovery", askAboutRecovery}};
    for (const auto &[name, ask] : three) {
        QTest::addRow("%s: yes", name) << ask << int(QMessageBox::Save) << Answer::Save;
        QTest::addRow("%s: no", name) << ask << int(QMessageBox::Discard) << Answer::Discard;
        QTest::addRow("%s: not now", name) << ask << int(QMessageBox::Cancel) << Answer::Cancel;
    }
    const Ask overwrite = askToOverwrite;
    QTest::newRow("overwrite: yes") << overwrite << int(QMessageBox::Save) << Answer::Save;
    QTest::newRow("overwrite: no") << overwrite << int(QMessageBox::Cancel) << Answer::Cancel;
}

void tst_FileQuestions::shouldAnswerAsTheButtonSays()
{
    QFETCH(Ask, ask);
    QFETCH(int, button);
    QFETCH(FileQuestions::Answer, answer);
    whenShown<QMessageBox>(
        [button](QMessageBox *box) { box->button(QMessageBox::StandardButton(button))->click(); });
    FileQuestions questions(nullptr);
    QCOMPARE(ask(&questions), answer);
}

void tst_FileQuestions::shouldLoseNothingByAKey_data()
{
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<FileQuestions::Answer>("answer");
    const Ask changes = askAboutChanges;
    const Ask recovery = askAboutRecovery;
    const Ask overwrite = askToOverwrite;
    QTest::newRow("changes: Return") << changes << Qt::Key_Return << Answer::Save;
    QTest::newRow("changes: Escape") << changes << Qt::Key_Escape << Answer::Cancel;
    QTest::newRow("recovery: Return") << recovery << Qt::Key_Return << Answer::Save;
    QTest::newRow("recovery: Escape") << recovery << Qt::Key_Escape << Answer::Cancel;
    QTest::newRow("overwrite: Return") << overwrite << Qt::Key_Return << Answer::Cancel;
    QTest::newRow("overwrite: Escape") << overwrite << Qt::Key_Escape << Answer::Cancel;
}

void tst_FileQuestions::shouldLoseNothingByAKey()
{
    QFETCH(Ask, ask);
    QFETCH(Qt::Key, key);
    QFETCH(FileQuestions::Answer, answer);
    whenShown<QMessageBox>([key](QMessageBox *box) { QTest::keyClick(box, key); });
    FileQuestions questions(nullptr);
    QCOMPARE(ask(&questions), answer);
}

/// A desktop has words of its own for the button, such as "Close without Saving".
void tst_FileQuestions::shouldSayWhatIsThrownAway()
{
    Marks marks;
    QVERIFY(QCoreApplication::installTranslator(&marks));
    QStringList texts;
    whenShown<QMessageBox>([&texts](QMessageBox *box) {
        const QList<QAbstractButton *> buttons = box->buttons();
        for (const QAbstractButton *button : buttons)
            texts.append(button->text());
        box->reject();
    });
    FileQuestions(nullptr).aboutRecovery("a.json", "now");
    QCoreApplication::removeTranslator(&marks);
    texts.sort();
    QCOMPARE(texts, QStringList({"*&Discard", "*&Later", "*&Recover"}));
}

void tst_FileQuestions::shouldNameASceneAsOne()
{
    const QTemporaryDir folder;
    const QString current = folder.filePath("a.json");
    whenShown<QFileDialog>([](QFileDialog *dialog) {
        QCOMPARE(dialog->selectedFiles().value(0).section('/', -1), QString("a.json"));
        dialog->selectFile("b");
        dialog->findChild<QPushButton *>()->click();
    });
    FileQuestions questions(nullptr);
    QCOMPARE(questions.fileToSave(current), folder.filePath("b.json"));
    whenShown<QFileDialog>([](QFileDialog *dialog) { dialog->reject(); });
    QCOMPARE(questions.fileToSave(current), QString());
}

KX_TEST_MAIN(tst_FileQuestions)
#include "tst_FileQuestions.moc"
