// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/pictures/PictureStage.h"

#include "host/QKXSearchBox.h"
#include "kit/widgets.h"
#include "tests/support/KxTest.h"
#include "tests/support/RealInput.h"
#include "viewer/app/ModulePanels.h"
#include "viewer/app/NoticeArea.h"
#include "viewer/app/OverlayLayer.h"

#include <QAction>
#include <QDockWidget>
#include <QImageWriter>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QTreeView>

#include <cstdio>
#include <cstdlib>

using namespace viewer;

namespace {

constexpr QSize WindowSize(1600, 780);
constexpr int Patience = 20000;   // milliseconds; a sanitized program on a busy machine is slow
constexpr int StandingStill = 80; // for so long nothing may change

[[noreturn]] void giveUp(const QString &what)
{
    std::fprintf(stderr, "guidePictures: waited in vain: %s\n", qPrintable(what));
    std::_Exit(1);
}

QDir emptied(const QString &folder)
{
    QDir dir(folder);
    dir.removeRecursively();
    return dir;
}

QImage grab(const QRect &place)
{
    QScreen *screen = QGuiApplication::primaryScreen();
    return screen->grabWindow(0, place.x(), place.y(), place.width(), place.height()).toImage();
}

/// The mean of the pixels around a place where they hardly differ, else the pixel itself.
QRgb quiet(const QImage &picture, int left, int top)
{
    constexpr int reach = 2;
    constexpr int most = 8; // levels between two of them
    int low[3] = {255, 255, 255};
    int high[3] = {0, 0, 0};
    int sum[3] = {0, 0, 0};
    int count = 0;
    const QRect around = QRect(left - reach, top - reach, 2 * reach + 1, 2 * reach + 1);
    const QRect seen = around & picture.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        for (int x = seen.left(); x <= seen.right(); ++x, ++count) {
            const int color[3] = {qRed(line[x]), qGreen(line[x]), qBlue(line[x])};
            for (int part = 0; part < 3; ++part) {
                low[part] = qMin(low[part], color[part]);
                high[part] = qMax(high[part], color[part]);
                sum[part] += color[part];
            }
        }
    }
    for (int part = 0; part < 3; ++part) {
        if (high[part] - low[part] > most)
            return picture.pixel(left, top);
    }
    return qRgb(sum[0] / count, sum[1] / count, sum[2] / count);
}

int rounded(int level)
{
    constexpr int step = 4;
    return qMin(255, (level + step / 2) / step * step);
}

/// The view has thousands of shades and dithers between them, which no eye sees and no file likes.
QImage withFewerShades(const QImage &screen, const QRect &part)
{
    const QImage picture = screen.convertToFormat(QImage::Format_RGB32);
    QImage result = picture;
    const QRect view = part & picture.rect();
    for (int y = view.top(); y <= view.bottom(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = view.left(); x <= view.right(); ++x) {
            const QRgb color = quiet(picture, x, y);
            line[x] = qRgb(rounded(qRed(color)), rounded(qGreen(color)), rounded(qBlue(color)));
        }
    }
    return result;
}

} // namespace

PictureStage::PictureStage(const QString &folder)
    : m_folder(QDir(folder).absolutePath())
    , m_place(emptied(QStringLiteral(SCENES)))
    , m_settings(
          std::make_unique<QSettings>(m_place.filePath("settings.ini"), QSettings::IniFormat))
{
    QDir().mkpath(scenes().path());
    copyExamples();
    // Messages name files as they were given.
    QDir::setCurrent(scenes().path());
    const CommandLine line(
        {"overlay-viewer", "title_sheet.json", "--plugin", QStringLiteral(EDITOR_PLUGIN)});
    m_session = std::make_unique<ViewerSession>(line, m_settings.get());
    m_session->start();
    window()->setGeometry({{40, 40}, WindowSize});
    m_tree = window()->findChild<QTreeView *>();
    if (!m_tree || !becomesActive(window()))
        giveUp("the viewer's window");
    wait([this] { return window()->size() == WindowSize; }, "the size of the window");
    window()->modulePanels()->applyDefaultSizes();
}

PictureStage::~PictureStage() = default;

void PictureStage::copyExamples() const
{
    const QDir examples(QStringLiteral(EXAMPLES));
    scenes().mkdir("images");
    for (const char *folder : {".", "images"}) {
        const QDir from(examples.filePath(folder));
        const QStringList files = from.entryList(QDir::Files);
        for (const QString &file : files) {
            const QString copy = scenes().filePath(folder) + '/' + file;
            QFile::remove(copy);
            QFile::copy(from.filePath(file), copy);
        }
    }
}

void PictureStage::open(const char *example)
{
    copyExamples();
    window()->findChild<QKXSearchBox *>()->clear();
    m_tree->clearSelection();
    // By the session: nobody is asked about what the picture before has changed.
    if (!m_session->openScene(scenes().filePath(example)))
        giveUp(example);
    m_tree->collapseAll();
    m_tree->setFocus();
    window()->viewArea()->resetView();
    window()->viewArea()->notices()->clear();
    // The mouse stands aside.
    realInput::moveTo(*window(), QPoint(WindowSize.width() + 20, WindowSize.height() / 2));
}

void PictureStage::wait(const Condition &condition, const QString &what)
{
    if (!QTest::qWaitFor(condition, Patience))
        giveUp(what);
}

void PictureStage::whenever(const Condition &condition, const std::function<void()> &act)
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, condition, act] {
        if (!condition())
            return;
        timer->stop();
        timer->deleteLater();
        act();
    });
    timer->start(StandingStill / 4);
}

QImage PictureStage::whenStill(const QRect &place) const
{
    // What it says of files is over in seconds.
    m_session->window()->statusBar()->clearMessage();
    QImage picture;
    const auto standsStill = [&] {
        const QImage before = std::exchange(picture, grab(place));
        QTest::qWait(StandingStill);
        return before == picture && !m_session->images().isLoading();
    };
    wait(standsStill, "the screen standing still");
    return picture;
}

void PictureStage::settle() const
{
    whenStill(placeOf(m_session->window()));
}

void PictureStage::take(const char *name, const QRect &place) const
{
    const QImage picture = whenStill(place);
    const QRect shaded = placeOf(m_session->window()->viewArea());
    QDir().mkpath(m_folder.path());
    QImageWriter writer(m_folder.filePath(name));
    writer.setCompression(100);
    if (!writer.write(withFewerShades(picture, shaded.translated(-place.topLeft()))))
        giveUp(writer.fileName() + ": " + writer.errorString());
    std::printf("%s\n", qPrintable(writer.fileName()));
    std::fflush(stdout);
}

void PictureStage::take(const char *name, const QWidget *widget) const
{
    take(name, placeOf(widget));
}

QRect PictureStage::placeOf(const QWidget *widget)
{
    return {widget->mapToGlobal(QPoint()), widget->size()};
}

QWidget *PictureStage::widget(const char *name)
{
    auto *found = window()->findChild<QWidget *>(name);
    if (!found)
        giveUp(name);
    return found;
}

QAction *PictureStage::action(const char *name)
{
    auto *found = window()->findChild<QAction *>(name);
    if (!found)
        giveUp(name);
    return found;
}

QModelIndex PictureStage::row(const QString &name)
{
    const QAbstractItemModel *model = m_tree->model();
    const QModelIndexList found = model->match(model->index(0, 0), Qt::DisplayRole, name, 1,
                                               Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty())
        giveUp("a row " + name);
    return found.constFirst();
}

QRect PictureStage::rowPlace(const QString &name)
{
    const QModelIndex index = row(name);
    m_tree->scrollTo(index);
    return m_tree->visualRect(index);
}

void PictureStage::expand(const QStringList &names)
{
    for (const QString &name : names)
        m_tree->expand(row(name));
}

void PictureStage::select(const QStringList &names)
{
    QStringList held;
    for (const QString &name : names) {
        // Past the check box and the icon, where a name is.
        const QRect place = rowPlace(name);
        realInput::click(*m_tree->viewport(), {place.left() + 60, place.center().y()}, held);
        wait([&] { return selected().contains(name); }, "selected: " + name);
        held = QStringList("ctrl");
    }
    realInput::moveTo(*window(), QPoint(WindowSize.width() + 20, WindowSize.height() / 2));
}

QStringList PictureStage::selected() const
{
    return widgets::selectedNames(*m_tree);
}

QRPC::NodeId PictureStage::node(const QString &name)
{
    QRPC::NodeId found = 0;
    overlays()->scene().forEach([&](const Node &each) {
        if (each.name == name && found == 0)
            found = each.id;
    });
    return found;
}

QRect PictureStage::boxOf(const QString &name)
{
    ImageCache images;
    OverlayPainter painter(overlays()->scene(), images);
    const ViewGeometry geometry = OverlayLayer::geometryOf(*view());
    return painter.boxOf(node(name), geometry.size, geometry.dpi).toAlignedRect();
}

void PictureStage::dragInView(const QPoint &from, const QPoint &to)
{
    realInput::moveTo(*view(), from);
    realInput::press();
    // The X server joins moves that come too fast.
    for (int step = 1; step <= 4; ++step) {
        realInput::moveTo(*view(), from + (to - from) * step / 4);
        QTest::qWait(0);
    }
}
