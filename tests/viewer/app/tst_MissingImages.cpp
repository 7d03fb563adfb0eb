// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MissingImages.h"

#include "tests/support/KxTest.h"
#include "viewer/scene/OverlayService.h"

#include <QDir>
#include <QTemporaryDir>

using namespace viewer;

class tst_MissingImages : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldTakeBackWhatHasCome();
    void shouldTakeBackWhatHadComeBefore();
    void shouldStandByWhatWentAgain();
    void shouldTakeBackWhatNoOverlayUses_data();
    void shouldTakeBackWhatNoOverlayUses();
    void shouldStandByWhatAnotherOverlayUses();
    void shouldSettleEachMessage();
    void shouldTellAgainOfWhatIsMissingAgain();
    void shouldTakeAllBackWithTheScene();

private:
    MissingImage missing(const char *name) const { return {path(name), name}; }
    QString path(const char *name) const { return m_folder->filePath(name); }
    bool make(const char *name) const { return QFile(path(name)).open(QIODevice::WriteOnly); }
    QRPC::NodeId use(const char *name);
    void follow();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<OverlayService> m_service;
    std::unique_ptr<MissingImages> m_images;
    QStringList m_told; // and not taken back
};

void tst_MissingImages::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_service = std::make_unique<OverlayService>();
    m_images = std::make_unique<MissingImages>(m_service.get());
    m_told.clear();
    follow();
}

void tst_MissingImages::cleanup()
{
    m_images.reset();
    m_service.reset();
    KxTest::cleanup();
}

/// Does what a list of messages does.
void tst_MissingImages::follow()
{
    MissingImages *images = m_images.get();
    connect(images, &MissingImages::reported, this, [this](Severity severity, const QString &text) {
        QCOMPARE(severity, Severity::Warning);
        m_told.append(text);
    });
    connect(images, &MissingImages::reduced, this,
            [this](const QString &text, const QString &rest) {
                QVERIFY(m_told.contains(text));
                m_told.replace(m_told.indexOf(text), rest);
            });
    connect(images, &MissingImages::overcome, this,
            [this](const QString &text) { QVERIFY(m_told.removeOne(text)); });
}

QRPC::NodeId tst_MissingImages::use(const char *name)
{
    const QRPC::NodeId node = m_service->createOverlay(Scene::RootId);
    m_service->setImage({node}, path(name));
    return node;
}

void tst_MissingImages::shouldTakeBackWhatHasCome()
{
    for (const char *name : {"a.png", "b.png", "c.png"})
        use(name);
    m_images->report({missing("a.png"), missing("b.png"), missing("c.png")});
    QCOMPARE(m_told, QStringList("a.png\nb.png\nc.png"));
    QVERIFY(make("b.png"));
    QTRY_COMPARE(m_told, QStringList("a.png\nc.png"));
    QVERIFY(make("a.png"));
    QVERIFY(make("c.png"));
    QTRY_COMPARE(m_told, QStringList());
}

/// While the scene was being read: nobody gives notice of it.
void tst_MissingImages::shouldTakeBackWhatHadComeBefore()
{
    use("a.png");
    QVERIFY(make("a.png"));
    m_images->report({missing("a.png")});
    QCOMPARE(m_told, QStringList("a.png"));
    QTRY_COMPARE(m_told, QStringList());
}

void tst_MissingImages::shouldStandByWhatWentAgain()
{
    use("a.png");
    use("b.png");
    QVERIFY(make("a.png"));
    m_images->report({missing("a.png"), missing("b.png")});
    QVERIFY(QFile::remove(path("a.png")));
    QVERIFY(make("b.png"));
    QTRY_VERIFY(m_told != QStringList("a.png\nb.png"));
    QCOMPARE(m_told, QStringList("a.png"));
}

void tst_MissingImages::shouldTakeBackWhatNoOverlayUses_data()
{
    QTest::addColumn<bool>("isDeleted");
    QTest::newRow("it shows another file") << false;
    QTest::newRow("it is deleted") << true;
}

void tst_MissingImages::shouldTakeBackWhatNoOverlayUses()
{
    QFETCH(bool, isDeleted);
    use("a.png");
    const QRPC::NodeId node = use("b.png");
    m_images->report({missing("a.png"), missing("b.png")});
    if (isDeleted)
        m_service->deleteNodes({node});
    else
        m_service->setImage({node}, path("c.png"));
    QTRY_COMPARE(m_told, QStringList("a.png"));
}

void tst_MissingImages::shouldStandByWhatAnotherOverlayUses()
{
    const QRPC::NodeId first = use("a.png");
    const QRPC::NodeId second = use("a.png");
    const QRPC::NodeId other = use("b.png");
    m_images->report({missing("a.png"), missing("b.png")});
    m_service->deleteNodes({first, other});
    QTRY_COMPARE(m_told, QStringList("a.png"));
    m_service->deleteNodes({second});
    QTRY_COMPARE(m_told, QStringList());
}

void tst_MissingImages::shouldSettleEachMessage()
{
    use("a.png");
    use("b.png");
    m_images->report({missing("a.png")});
    m_images->report({missing("b.png"), missing("a.png")});
    QVERIFY(make("a.png"));
    QTRY_COMPARE(m_told, QStringList("b.png"));
    QVERIFY(make("b.png"));
    QTRY_COMPARE(m_told, QStringList());
}

void tst_MissingImages::shouldTellAgainOfWhatIsMissingAgain()
{
    use("a.png");
    use("b.png");
    m_images->report({missing("a.png"), missing("b.png")});
    QVERIFY(make("a.png"));
    QTRY_COMPARE(m_told, QStringList("b.png"));
    QVERIFY(QFile::remove(path("a.png")));
    m_images->report({missing("a.png")});
    QCOMPARE(m_told, QStringList({"b.png", "a.png"}));
    QVERIFY(make("b.png"));
    QTRY_COMPARE(m_told, QStringList("a.png"));
    QVERIFY(make("a.png"));
    QTRY_COMPARE(m_told, QStringList());
}

void tst_MissingImages::shouldTakeAllBackWithTheScene()
{
    use("a.png");
    m_images->report({missing("a.png")});
    m_images->report({missing("b.png")});
    m_images->forgetAll();
    QCOMPARE(m_told, QStringList());
}

KX_TEST_MAIN(tst_MissingImages)
#include "tst_MissingImages.moc"
