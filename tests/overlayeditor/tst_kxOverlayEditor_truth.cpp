// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXColor.h"
#include "tests/overlayeditor/PanelOracle.h"
#include "tests/overlayeditor/PanelTest.h"

#include <QSlider>

#include <algorithm>
#include <limits>
#include <random>

namespace {

using Node = RecordingService::Node;
using Form = kxOverlayEditorGUIW;

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

/// The first node is the plain text that the others differ from in few things.
const char s_pool[] = "a2 a3 b4 c5 d6 e7 f8 h9 i10 j11 k12 l13 m14 g15() s16*(n17)";

void fillPool(const RecordingService &service)
{
    const auto node = [&](QRPC::NodeId id) -> Node & { return service.node(id); };
    for (QRPC::NodeId id = 2; id <= 17; ++id) {
        node(id).name = id <= 8 ? "same" : node(id).name;
        node(id).text = "text";
        node(id).font = "DejaVu Sans";
        node(id).position = {0.0, 0.5};
        node(id).image = "/no/a.png";
    }
    node(4).text = "other\ntext";
    node(4).font = "DejaVu Serif";
    node(4).fontColor = QColor(0x33, 0x66, 0x99);
    node(4).backgroundColor = QColor(10, 20, 30, 40);
    node(4).transparency = Qt::gray;
    node(4).offset = {1.5, 0.0};
    node(5).sizeType = 1;
    node(5).size = 0.25F;
    node(5).offset = {0.0, -2.5};
    node(6).size = std::numeric_limits<float>::quiet_NaN();
    node(7).position = {noNumber, 0.5};
    node(7).offset = {noNumber, 0.0};
    node(8).position = {7e-13, 0.5};
    node(9).position = {-7e-13, 0.5};
    for (const QRPC::NodeId id : {10, 11, 12})
        node(id).type = 1;
    node(11).image = "/no/b.png";
    node(11).sizeType = 1;
    node(11).size = 0.25F;
    node(12).position = {0.25, 0.75};
    node(13).type = 2;
    node(14).sizeType = 2;
    node(14).size = 200.0F;
}

QString valueOf(const Form &form, const QWidget *control)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(control))
        return button->isChecked() ? "checked" : "";
    if (const auto *color = qobject_cast<const QKXColorManipulator *>(control))
        return color->color().toColor().name();
    if (const auto *spinner = qobject_cast<const QDoubleSpinBox *>(control))
        return QString::number(spinner->value());
    if (control == form._overlay_name)
        return form._overlay_name->text();
    if (control == form._text_edit)
        return form._text_edit->toPlainText();
    if (control == form._font_combo_box)
        return form._font_combo_box->currentText();
    if (control == form._image_edit)
        return form._image_edit->getTexture();
    if (control == form._position_combo_box)
        return QString::number(form._position_combo_box->currentIndex());
    if (control != form._size_slider)
        return {};
    const auto *field = control->findChild<QDoubleSpinBox *>();
    return QStringLiteral("%1%2, %3 steps of %4")
        .arg(form._size_slider->value())
        .arg(field->suffix())
        .arg(control->findChild<QSlider *>()->maximum())
        .arg(field->singleStep());
}

} // namespace

/// The panel tells the truth: after any change from outside every control is what the rules say.
class tst_kxOverlayEditor_truth : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldShowEverySelectionOfUpToFourNodes();
    void shouldFollowEveryChangeOfEverySelection_data();
    void shouldFollowEveryChangeOfEverySelection();

private:
    void choose(const QRPC::NodeList &nodes);
    void chooseSubsets(QRPC::NodeList *chosen, int from);
    void refreshEach();
    void change(std::mt19937 *random);
    QString changeOne(Node *node, unsigned property, int which);
    QStringList shown();
    bool isTrue();

    std::unique_ptr<PanelOracle> m_oracle;
    int m_checks = 0;
};

void tst_kxOverlayEditor_truth::init()
{
    PanelTest::init();
    openEditor(s_pool);
    fillPool(service());
    m_oracle = std::make_unique<PanelOracle>(service());
    // Every control has been shown once then.
    choose({11});
    choose({10});
    choose({2});
}

void tst_kxOverlayEditor_truth::cleanup()
{
    m_oracle.reset();
    PanelTest::cleanup();
}

/// In the order of the list, with one change of the selection; the one before it is because the same
/// nodes in another order are no change.
void tst_kxOverlayEditor_truth::choose(const QRPC::NodeList &nodes)
{
    tree().selectionModel()->clearSelection();
    m_oracle->refreshAll({});
    QItemSelection selection;
    for (const QRPC::NodeId id : nodes)
        selection.append(QItemSelectionRange(index(id)));
    tree().selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    m_oracle->refreshAll(editor().getSelectedNodes());
}

QStringList tst_kxOverlayEditor_truth::shown()
{
    QStringList lines;
    const QStringList expected = m_oracle->lines();
    for (const QString &line : expected) {
        const QString name = line.section(' ', 0, 0);
        const auto *control = window().findChild<QWidget *>(name);
        lines.append(PanelOracle::line(name, valueOf(window(), control), isMarked(*control),
                                       control->isEnabled(), !control->isHidden()));
    }
    return lines;
}

bool tst_kxOverlayEditor_truth::isTrue()
{
    ++m_checks;
    const QStringList expected = m_oracle->lines();
    const QStringList actual = shown();
    for (int i = 0; i < expected.size(); ++i) {
        if (actual.at(i) != expected.at(i))
            qWarning("shown:    %s\nexpected: %s", qPrintable(actual.at(i)),
                     qPrintable(expected.at(i)));
    }
    if (actual != expected)
        qWarning() << "selected:" << editor().getSelectedNodes();
    const QStringList sent = writes();
    if (!sent.isEmpty())
        qWarning("sent: %s", qPrintable(sent.join("; ")));
    log().clear();
    return expected == actual && sent.isEmpty();
}

void tst_kxOverlayEditor_truth::refreshEach()
{
    for (const PanelProperty &refreshed : properties()) {
        announce(refreshed.changed, {});
        const QString name = refreshed.name;
        m_oracle->refresh(name.startsWith("offset") ? QString("offset") : name,
                          editor().getSelectedNodes());
        QVERIFY2(isTrue(), refreshed.name);
    }
}

/// The nodes chosen so far, and with each of those that follow.
void tst_kxOverlayEditor_truth::chooseSubsets(QRPC::NodeList *chosen, int from)
{
    choose(*chosen);
    QVERIFY(isTrue());
    // The other way round the first node is another.
    QRPC::NodeList reversed = *chosen;
    std::reverse(reversed.begin(), reversed.end());
    choose(reversed);
    QVERIFY(isTrue());
    refreshEach();
    if (chosen->size() == 4)
        return;
    for (int id = from; id <= 16 && !QTest::currentTestFailed(); ++id) {
        chosen->append(QRPC::NodeId(id));
        chooseSubsets(chosen, id + 1);
        chosen->removeLast();
    }
}

void tst_kxOverlayEditor_truth::shouldShowEverySelectionOfUpToFourNodes()
{
    QRPC::NodeList chosen;
    chooseSubsets(&chosen, 2);
    qInfo("%d times true", m_checks);
}

void tst_kxOverlayEditor_truth::shouldFollowEveryChangeOfEverySelection_data()
{
    QTest::addColumn<unsigned>("seed");
    const bool isLong = qEnvironmentVariableIsSet("KX_LONG_TESTS");
    for (unsigned seed = 1; seed <= (isLong ? 100U : 4U); ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Gives a node another of few values, so that equal ones stay frequent; the property's name.
QString tst_kxOverlayEditor_truth::changeOne(Node *node, unsigned property, int which)
{
    const PanelProperty &changed = properties().at(int(property));
    const QString name = changed.name;
    if (which < 2)
        changed.put(node, which);
    else if (name == "size")
        node->size = std::numeric_limits<float>::quiet_NaN();
    else if (name == "position")
        node->position = {which == 2 ? noNumber : 7e-13, 0.5};
    else if (name == "type")
        node->type = which;
    else if (name.startsWith("offset"))
        node->offset = {which == 2 ? noNumber : 3.0 + 1e-13, -4.0};
    announce(changed.changed, {node->id});
    return name.startsWith("offset") ? QString("offset") : name;
}

void tst_kxOverlayEditor_truth::change(std::mt19937 *random)
{
    const auto draw = [&](unsigned below) { return unsigned((*random)() % below); };
    const QRPC::NodeList ids = service().allIds();
    const QRPC::NodeId id = ids.at(int(draw(unsigned(ids.size()))));
    if (draw(40) == 0 && ids.size() > 8) {
        service().deleteNodes({id});
        log().clear();
        m_oracle->refreshAll(editor().getSelectedNodes());
        return;
    }
    const QString property =
        changeOne(&node(id), draw(unsigned(properties().size())), int(draw(4)));
    m_oracle->refresh(property, editor().getSelectedNodes());
}

void tst_kxOverlayEditor_truth::shouldFollowEveryChangeOfEverySelection()
{
    QFETCH(unsigned, seed);
    std::mt19937 random(seed);
    for (int step = 0; step < 400; ++step) {
        QRPC::NodeList ids = service().allIds();
        std::shuffle(ids.begin(), ids.end(), random);
        choose(ids.mid(0, int(random() % 5)));
        QVERIFY2(isTrue(), qPrintable(QString("step %1").arg(step)));
        for (int i = 0; i < 6; ++i) {
            change(&random);
            QVERIFY2(isTrue(), qPrintable(QString("step %1, change %2").arg(step).arg(i)));
        }
    }
}

KX_TEST_MAIN(tst_kxOverlayEditor_truth)
#include "tst_kxOverlayEditor_truth.moc"
