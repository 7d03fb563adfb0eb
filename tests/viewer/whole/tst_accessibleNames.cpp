// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/viewer/whole/WholeViewer.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

/// The controls that a window offers to assistive tools.
class Controls
{
public:
    explicit Controls(QWidget *window) { add(QAccessible::queryAccessibleInterface(window)); }

    int count() const { return m_count; }
    QStringList unnamed() const { return m_unnamed; }

private:
    void add(QAccessibleInterface *part)
    {
        if (!part || !part->isValid() || part->state().invisible)
            return;
        if (isControl(*part)) {
            ++m_count;
            if (nameOf(*part).trimmed().isEmpty())
                m_unnamed.append(describe(*part));
        }
        // What lies in the cells of a view are the user's own names.
        if (part->role() == QAccessible::Tree || part->role() == QAccessible::List)
            return;
        for (int i = 0; i < part->childCount(); ++i)
            add(part->child(i));
    }

    /// What takes the keyboard or can be operated. The parts of a field that are one with it are named
    /// by it, as are scroll bars and the handles between panes.
    static bool isControl(const QAccessibleInterface &part)
    {
        static const QVector<QAccessible::Role> parts{QAccessible::ScrollBar, QAccessible::Grip,
                                                      QAccessible::Separator,
                                                      QAccessible::Splitter};
        static const QVector<QAccessible::Role> controls{
            QAccessible::Button,   QAccessible::CheckBox,     QAccessible::RadioButton,
            QAccessible::ComboBox, QAccessible::EditableText, QAccessible::Slider,
            QAccessible::SpinBox,  QAccessible::MenuItem,     QAccessible::ButtonMenu,
            QAccessible::Tree,     QAccessible::List,         QAccessible::Table,
            QAccessible::PageTab,  QAccessible::Link,         QAccessible::Dialog};
        if (parts.contains(part.role()) || isPartOfField(part))
            return false;
        return controls.contains(part.role()) || part.state().focusable;
    }

    /// A list box gives its current value for want of a name.
    static QString nameOf(const QAccessibleInterface &part)
    {
        const auto *widget = qobject_cast<const QWidget *>(part.object());
        const bool isNamed = part.role() != QAccessible::ComboBox
                             || !part.relations(QAccessible::Label).isEmpty()
                             || !widget->accessibleName().isEmpty();
        return isNamed ? part.text(QAccessible::Name) : QString();
    }

    static bool isPartOfField(const QAccessibleInterface &part)
    {
        const QAccessibleInterface *owner = part.parent();
        return owner
               && (owner->role() == QAccessible::SpinBox || owner->role() == QAccessible::ComboBox);
    }

    static QString describe(const QAccessibleInterface &part)
    {
        QStringList path;
        for (const QObject *object = part.object(); object && path.size() < 4;
             object = object->parent())
            path.append(
                QStringLiteral("%1 \"%2\"")
                    .arg(QLatin1String(object->metaObject()->className()), object->objectName()));
        return QStringLiteral("role %1, %2").arg(part.role()).arg(path.join(" in "));
    }

    int m_count = 0;
    QStringList m_unnamed;
};

} // namespace

/// Everything of the viewer that can be operated has a name for those who do not see it.
class tst_accessibleNames : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldFindControlsWithoutName();
    void shouldNameEveryControl();
};

void tst_accessibleNames::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

void tst_accessibleNames::shouldFindControlsWithoutName()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel("text"));
    layout->addWidget(new QPushButton("named"));
    layout->addWidget(new QPushButton);
    layout->addWidget(new QLineEdit);
    auto *number = new QSpinBox;
    number->setAccessibleName("a number");
    layout->addWidget(number);
    auto *choice = new QComboBox;
    choice->addItem("a value is no name");
    layout->addWidget(choice);
    window.show();
    QTRY_VERIFY(window.isVisible());
    const Controls controls(&window);
    QCOMPARE(controls.count(), 5);
    QCOMPARE(controls.unnamed().size(), 3);
}

void tst_accessibleNames::shouldNameEveryControl()
{
    QStringList faults;
    int count = 0;
    WholeViewer viewer;
    viewer.visitAll([&](QWidget *window, const QString &what) {
        const Controls controls(window);
        count += controls.count();
        const QStringList unnamed = controls.unnamed();
        for (const QString &control : unnamed) {
            if (!faults.contains(control)) {
                faults.append(control);
                qInfo().noquote() << "no name:" << control << '(' + what + ')';
            }
        }
    });
    QCOMPARE(faults.size(), 0);
    QVERIFY2(count > 500, qPrintable(QString::number(count)));
}

KX_TEST_MAIN(tst_accessibleNames)
#include "tst_accessibleNames.moc"
