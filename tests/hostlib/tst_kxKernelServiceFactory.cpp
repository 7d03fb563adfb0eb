// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxControllerService.h"
#include "host/kxKernelServiceFactory.h"
#include "tests/support/KxTest.h"

#include <QFile>
#include <QTemporaryFile>

#include <unistd.h>

namespace {

class Controller : public kxControllerService
{
public:
    bool isHeadless() override { return true; }
};

/// What is written to standard error while it lives; both messages bypass Qt.
class StandardError
{
public:
    StandardError()
    {
        m_file.open();
        m_saved = dup(STDERR_FILENO);
        dup2(m_file.handle(), STDERR_FILENO);
    }
    ~StandardError() { restore(); }
    Q_DISABLE_COPY(StandardError)

    QByteArray text()
    {
        restore();
        QFile file(m_file.fileName());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    void restore()
    {
        if (m_saved < 0)
            return;
        std::fflush(stderr);
        dup2(m_saved, STDERR_FILENO);
        close(m_saved);
        m_saved = -1;
    }

    QTemporaryFile m_file;
    int m_saved = -1;
};

QByteArray nameOfController()
{
    return typeid(kxControllerService).name();
}

} // namespace

class tst_kxKernelServiceFactory : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void shouldFindARegisteredService();
    void shouldFindTheObjectRegisteredUnderTheBase();
    void shouldReportAMissingService();
    void shouldReportANullService();
    void shouldGiveNullSilentlyForAnObjectOfAnotherClass();
    void shouldForgetAnUnregisteredService();
    void shouldReplaceAService();

private:
    kxKernelServiceFactory *m_factory = kxKernelServiceFactory::the();
};

void tst_kxKernelServiceFactory::cleanup()
{
    m_factory->unregisterService<kxControllerService>();
    m_factory->unregisterService<kxBaseService>();
    KxTest::cleanup();
}

void tst_kxKernelServiceFactory::shouldFindARegisteredService()
{
    Controller controller;
    m_factory->registerService<kxControllerService>(&controller);
    StandardError output;
    QCOMPARE(m_factory->getService<kxControllerService>(), &controller);
    QCOMPARE(output.text(), QByteArray());
}

void tst_kxKernelServiceFactory::shouldFindTheObjectRegisteredUnderTheBase()
{
    kxBaseService base;
    m_factory->registerService<kxBaseService>(&base);
    QCOMPARE(m_factory->getService<kxBaseService>(), &base);
}

void tst_kxKernelServiceFactory::shouldReportAMissingService()
{
    StandardError output;
    QCOMPARE(m_factory->getService<kxControllerService>(), nullptr);
    QCOMPARE(output.text(),
             "kxKernelServiceFactory: couldn't find class '" + nameOfController() + "'!\n");
}

void tst_kxKernelServiceFactory::shouldReportANullService()
{
    m_factory->registerService<kxControllerService>(nullptr);
    StandardError output;
    QCOMPARE(m_factory->getService<kxControllerService>(), nullptr);
    QCOMPARE(output.text(),
             "kxKernelServiceFactory: service '" + nameOfController() + "' is NULL!\n");
}

void tst_kxKernelServiceFactory::shouldGiveNullSilentlyForAnObjectOfAnotherClass()
{
    kxBaseService other;
    m_factory->registerService(typeid(kxControllerService), &other);
    StandardError output;
    QCOMPARE(m_factory->getService<kxControllerService>(), nullptr);
    QCOMPARE(output.text(), QByteArray());
}

void tst_kxKernelServiceFactory::shouldForgetAnUnregisteredService()
{
    Controller controller;
    m_factory->registerService<kxControllerService>(&controller);
    m_factory->unregisterService<kxControllerService>();
    StandardError output;
    QCOMPARE(m_factory->getService<kxControllerService>(), nullptr);
    QVERIFY(output.text().contains("couldn't find class"));
}

void tst_kxKernelServiceFactory::shouldReplaceAService()
{
    Controller first;
    Controller second;
    m_factory->registerService<kxControllerService>(&first);
    m_factory->registerService<kxControllerService>(&second);
    QCOMPARE(m_factory->getService<kxControllerService>(), &second);
}

KX_TEST_MAIN(tst_kxKernelServiceFactory)
#include "tst_kxKernelServiceFactory.moc"
