// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/WidgetTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextEdit>

#include <algorithm>
#include <iterator>

namespace
{

/// One row for each kind of widget with a text.
struct Kind {
    const char *className;
    QString (*text)(const QWidget *);
};

template<typename Widget>
const Widget *as(const QWidget *widget)
{
    return static_cast<const Widget *>(widget);
}

const Kind kinds[] = {
    {"QLabel", [](const QWidget *w) { return as<QLabel>(w)->text(); }},
    {"QAbstractButton", [](const QWidget *w) { return as<QAbstractButton>(w)->text(); }},
    {"QLineEdit", [](const QWidget *w) { return as<QLineEdit>(w)->displayText(); }},
    {"QTextEdit", [](const QWidget *w) { return as<QTextEdit>(w)->toPlainText(); }},
    {"QPlainTextEdit", [](const QWidget *w) { return as<QPlainTextEdit>(w)->toPlainText(); }},
    {"QAbstractSpinBox", [](const QWidget *w) { return as<QAbstractSpinBox>(w)->text(); }},
    {"QComboBox", [](const QWidget *w) { return as<QComboBox>(w)->currentText(); }},
    {"QGroupBox", [](const QWidget *w) { return as<QGroupBox>(w)->title(); }},
    {"QProgressBar", [](const QWidget *w) { return as<QProgressBar>(w)->text(); }},
    {"QRoundProgressBar", [](const QWidget *w) { return w->property("text").toString(); }},
};

const Kind *kindOf(const QWidget *widget)
{
    const auto found = std::find_if(std::begin(kinds), std::end(kinds),
                                    [widget](const Kind &kind) { return widget->inherits(kind.className); });
    return found == std::end(kinds) ? nullptr : found;
}

/// Widgets whose inner parts are not recorded.
bool isClosedField(const QWidget *widget)
{
    return qobject_cast<const QAbstractSpinBox *>(widget) || qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QAbstractItemView *>(widget) || qobject_cast<const QScrollBar *>(widget) ||
           qobject_cast<const QLineEdit *>(widget);
}

void collect(const QWidget *parent, QVector<QWidget *> *found)
{
    for (QObject *child : parent->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (!widget || widget->isWindow() || !widget->isVisible())
            continue;
        if (widgettexts::isBearer(widget))
            found->append(widget);
        if (!isClosedField(widget))
            collect(widget, found);
    }
}

/// Whether a class is Qt's own. Some classes of the program begin with Q, too, so the name alone does not
/// tell.
bool isToolkitClass(const QString &className)
{
    static const QStringList classes{
        QStringLiteral("QLabel"),       QStringLiteral("QPushButton"),  QStringLiteral("QToolButton"),
        QStringLiteral("QRadioButton"), QStringLiteral("QCheckBox"),    QStringLiteral("QLineEdit"),
        QStringLiteral("QTextEdit"),    QStringLiteral("QTextBrowser"), QStringLiteral("QPlainTextEdit"),
        QStringLiteral("QSpinBox"),     QStringLiteral("QComboBox"),    QStringLiteral("QGroupBox"),
        QStringLiteral("QProgressBar")};
    return classes.contains(className);
}

} // namespace

namespace widgettexts
{

QString name(const QWidget *widget)
{
    if (!widget->objectName().isEmpty())
        return widget->objectName();
    const QString className = QLatin1String(widget->metaObject()->className());
    return isToolkitClass(className) ? QString() : className;
}

QString text(const QWidget *widget)
{
    const Kind *kind = kindOf(widget);
    return kind ? kind->text(widget) : QString();
}

QString image(const QWidget *widget)
{
    const QString path = widget->property("imagePath").toString();
    if (!path.isEmpty())
        return path;
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->movie())
        return label->movie()->fileName();
    if (!label && !qobject_cast<const QAbstractButton *>(widget))
        return QString();
    static const QRegularExpression url(QStringLiteral("url\\(\\s*\"?([^)\"]*)\"?\\s*\\)"));
    return url.match(widget->styleSheet()).captured(1);
}

bool hasPicture(const QWidget *widget)
{
    if (!image(widget).isEmpty())
        return true;
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->pixmap(Qt::ReturnByValue).width() > 0;
    const auto *button = qobject_cast<const QAbstractButton *>(widget);
    return button && !button->icon().isNull();
}

bool isBearer(const QWidget *widget)
{
    return kindOf(widget) != nullptr;
}

QVector<QWidget *> visibleChildren(const QWidget *window)
{
    QVector<QWidget *> found;
    collect(window, &found);
    const auto place = [window](const QWidget *widget) { return widget->mapTo(window, QPoint(0, 0)); };
    std::stable_sort(found.begin(), found.end(), [&place](const QWidget *one, const QWidget *other) {
        const QPoint a = place(one);
        const QPoint b = place(other);
        return a.y() != b.y() ? a.y() < b.y() : a.x() < b.x();
    });
    return found;
}

} // namespace widgettexts
