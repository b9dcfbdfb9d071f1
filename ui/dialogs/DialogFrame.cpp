// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/DialogFrame.h"

#include "ui/widgets/Images.h"
#include "ui/widgets/Style.h"

#include <QAbstractTextDocumentLayout>
#include <QBoxLayout>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>
#include <QWidget>

#include <algorithm>

namespace
{

const QColor BorderColour(0xc9, 0xd2, 0xdb);
const QColor TitleLineColour(0xe6, 0xea, 0xee);
constexpr int ButtonPadding = 16;
constexpr char LeastWidth[] = "leastWidth"; ///< property of a button: its minimum width, whatever its text

template<typename Layout>
Layout *makeLayout(QWidget *parent, const QMargins &margins, int spacing)
{
    auto *layout = new Layout(parent);
    layout->setContentsMargins(margins);
    layout->setSpacing(spacing);
    return layout;
}

QFrame *addFrame(QVBoxLayout *rows, const char *name)
{
    auto *frame = new QFrame;
    frame->setObjectName(QLatin1String(name));
    rows->addWidget(frame);
    return frame;
}

template<typename Widget>
void say(Widget *widget, const char *context, const char *text)
{
    if (text)
        widget->setText(QCoreApplication::translate(context, text));
}

} // namespace

DialogFrame::DialogFrame(QWidget *window) : m_pWindow(window), m_Drag(window) {}

QVBoxLayout *DialogFrame::build(const DialogShape &shape)
{
    m_Shape = shape;
    m_pWindow->setObjectName(QLatin1String(shape.context));
    m_pWindow->resize(shape.width, 0);
    auto *rows = makeLayout<QVBoxLayout>(m_pWindow, {1, 1, 1, 1}, 0);
    auto *strip = makeLayout<QHBoxLayout>(nullptr, {16, 0, 16, 0}, 0);
    rows->addLayout(strip);
    m_pTitle = addLabel(strip, shape.title.name);
    m_pTitle->setFixedHeight(36);
    addBody(rows);
    if (!shape.buttons.empty())
        addButtons(rows);
    m_pDismiss = button(DialogButton::Last);
    m_pMain = button(shape.main);
    m_pInitial = button(shape.initial);
    translate();
    return m_pTexts;
}

void DialogFrame::addBody(QVBoxLayout *rows)
{
    QFrame *frame = addFrame(rows, m_Shape.frame);
    const bool picture = m_Shape.picture.name;
    auto *body =
        makeLayout<QHBoxLayout>(frame, picture ? QMargins(20, 20, 20, 12) : QMargins(20, 16, 20, 20), 18);
    body->setObjectName(QStringLiteral("bodyLayout"));
    if (picture) {
        QLabel *image = addLabel(body, m_Shape.picture.name);
        image->setFixedSize(48, 48);
        body->setAlignment(image, Qt::AlignTop);
    }
    m_pTexts = makeLayout<QVBoxLayout>(nullptr, {0, 0, 0, 0}, 8);
    body->addLayout(m_pTexts);
    if (m_Shape.lines.empty())
        return;
    m_pTexts->addStretch();
    for (const DialogWord &line : m_Shape.lines) {
        m_apLines.push_back(addLabel(m_pTexts, line.name));
        m_apLines.back()->setWordWrap(true);
    }
    m_pTexts->addStretch();
}

void DialogFrame::addButtons(QVBoxLayout *rows)
{
    auto *row = makeLayout<QHBoxLayout>(addFrame(rows, m_Shape.bottomFrame), {20, 4, 20, 16}, 8);
    row->addStretch();
    for (const DialogWord &word : m_Shape.buttons) {
        auto *button = new QPushButton;
        button->setObjectName(QLatin1String(word.name));
        button->setMinimumWidth(96);
        button->setFixedHeight(32);
        row->addWidget(button);
        m_apButtons.push_back(button);
    }
}

QLabel *DialogFrame::addLabel(QBoxLayout *layout, const char *name)
{
    auto *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    layout->addWidget(label);
    return label;
}

QLabel *DialogFrame::addLink(QBoxLayout *layout, const char *name)
{
    QLabel *label = addLabel(layout, name);
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::LinksAccessibleByKeyboard | Qt::LinksAccessibleByMouse);
    return label;
}

QProgressBar *DialogFrame::addBar(QBoxLayout *layout)
{
    auto *bar = new QProgressBar;
    bar->setObjectName(QStringLiteral("progressBar"));
    bar->setFixedHeight(18);
    bar->setTextVisible(false);
    layout->addWidget(bar);
    return bar;
}

QTextEdit *DialogFrame::addText(QBoxLayout *layout)
{
    auto *text = new QTextEdit;
    text->setObjectName(QStringLiteral("textEdit"));
    text->setFrameShape(QFrame::NoFrame);
    text->setReadOnly(true);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setFont(style::font(10));
    text->setStyleSheet(style::sheet(QStringLiteral("QTextEdit{background: transparent; color: @text;}")));
    text->document()->setDocumentMargin(0);
    layout->addWidget(text);
    return text;
}

void DialogFrame::fitText(QTextEdit *text, int block)
{
    fit();
    m_pWindow->layout()->activate();
    QTextDocument *document = text->document();
    document->setTextWidth(text->viewport()->width());
    const QRectF first = document->documentLayout()->blockBoundingRect(document->findBlockByNumber(block));
    text->setFixedHeight(static_cast<int>(document->size().height() + first.top()) + style::px(2));
    fit();
}

QLabel *DialogFrame::label(const char *name) const
{
    return m_pWindow->findChild<QLabel *>(QLatin1String(name));
}

QPushButton *DialogFrame::button(DialogButton which) const
{
    if (which == DialogButton::None || m_apButtons.empty())
        return nullptr;
    return which == DialogButton::First ? m_apButtons.front() : m_apButtons.back();
}

void DialogFrame::translate() const
{
    m_pWindow->setWindowTitle(m_Shape.ownTitle
                                  ? QCoreApplication::translate(m_Shape.context, m_Shape.title.text)
                                  : QCoreApplication::translate("MainWindow", "Velmora Halvane"));
    for (std::size_t i = 0; i < m_apButtons.size(); ++i)
        say(m_apButtons[i], m_Shape.context, m_Shape.buttons[i].text);
    if (m_bTextsSet)
        return;
    say(m_pTitle, m_Shape.context, m_Shape.title.text);
    for (std::size_t i = 0; i < m_apLines.size(); ++i)
        say(m_apLines[i], m_Shape.context, m_Shape.lines[i].text);
}

void DialogFrame::setTexts(const QString &title, const QString &first, const QString &second)
{
    m_bTextsSet = true;
    m_pTitle->setText(title);
    m_apLines[0]->setText(first);
    m_apLines[1]->setText(second);
    fit();
}

void DialogFrame::dress(QLabel *title, QPushButton *dismiss, QPushButton *main)
{
    m_pTitle = title;
    m_pDismiss = dismiss;
    m_pMain = m_pInitial = main;
    dress();
}

void DialogFrame::dress()
{
    m_nDesignWidth = m_pWindow->width();
    const bool dialog = m_pWindow->parentWidget() || qobject_cast<QDialog *>(m_pWindow);
    m_pWindow->setWindowFlags((dialog ? Qt::Dialog : Qt::Window) | Qt::FramelessWindowHint);
    style::setWhiteBackground(m_pWindow);
    style::scaleForm(m_pWindow);
    style::showTextsAsData(m_pWindow);
    styleTexts();
    styleButtons();
    if (m_Shape.picture.name)
        images::setLabelImage(label(m_Shape.picture.name), QLatin1String(m_Shape.picture.text));
    // To a screen reader the title is the name of the text below it.
    if (auto *text = m_pWindow->findChild<QTextEdit *>(); text && m_pTitle)
        m_pTitle->setBuddy(text);
    m_pWindow->installEventFilter(this);
    fit();
}

void DialogFrame::keepTranslated(std::function<void()> translate)
{
    m_translate = std::move(translate);
    m_translate();
}

void DialogFrame::styleTexts() const
{
    const auto labels = m_pWindow->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        label->setFont(style::font(10));
        label->setStyleSheet(style::BlackLabel);
    }
    m_pTitle->setFont(style::semiBold(10));
    if (m_apLines.size() > 1)
        m_apLines.front()->setFont(style::semiBold(10));
}

void DialogFrame::styleButtons() const
{
    const auto buttons = m_pWindow->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        style::styleButton(button, button == m_pMain ? style::ButtonRole::Main : style::ButtonRole::Light);
        button->setProperty(LeastWidth, button->minimumWidth());
        button->setDefault(button == m_pMain); // Enter in a field presses it
    }
}

void DialogFrame::widenButtons() const
{
    const auto buttons = m_pWindow->findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text().isEmpty())
            continue;
        button->ensurePolished();
        const int text = QFontMetrics(button->font()).horizontalAdvance(button->text());
        button->setMinimumWidth(
            std::max(button->property(LeastWidth).toInt(), text + 2 * style::px(ButtonPadding)));
    }
}

void DialogFrame::fit()
{
    const auto labels = m_pWindow->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        if (label->wordWrap())
            label->setHidden(label->text().isEmpty());
    }
    widenButtons();
    QLayout *layout = m_pWindow->layout();
    layout->activate();
    const int width = std::max(style::px(m_nDesignWidth), layout->totalMinimumSize().width());
    const int height = layout->hasHeightForWidth() ? layout->totalHeightForWidth(width)
                                                   : layout->totalMinimumSize().height();
    const QSize before = m_pWindow->size();
    if (before == QSize(width, height))
        return;
    m_pWindow->setFixedSize(width, height);
    if (m_pWindow->testAttribute(Qt::WA_Moved))
        style::placeWindow(m_pWindow, m_pWindow->pos() + QPoint((before.width() - width) / 2,
                                                                (before.height() - height) / 2));
}

void DialogFrame::paint() const
{
    QPainter painter(m_pWindow);
    const int line = m_pTitle->mapTo(m_pWindow, QPoint(0, m_pTitle->height() - 1)).y();
    painter.setPen(TitleLineColour);
    painter.drawLine(0, line, m_pWindow->width() - 1, line);
    painter.setPen(BorderColour);
    painter.drawRect(m_pWindow->rect().adjusted(0, 0, -1, -1));
}

bool DialogFrame::keyPressed(int key) const
{
    if (key == Qt::Key_Escape) {
        if (!m_Shape.context)
            m_pWindow->hide();
        else if (m_pDismiss)
            m_pDismiss->click();
        return true;
    }
    // A button with the focus takes the key, and a QDialog presses its default button by itself.
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_pMain && !qobject_cast<QDialog *>(m_pWindow)) {
        m_pMain->click();
        return true;
    }
    return false;
}

bool DialogFrame::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Paint:
        paint();
        break;
    case QEvent::Show:
        fit();
        if (m_pInitial)
            m_pInitial->setFocus();
        break;
    case QEvent::LayoutRequest:
        fit();
        break;
    case QEvent::LanguageChange:
        if (m_Shape.context)
            translate();
        if (m_translate)
            m_translate();
        break;
    case QEvent::KeyPress:
        return keyPressed(static_cast<QKeyEvent *>(event)->key());
    case QEvent::Close:
        // The button's action tidies up behind the dialog, so it comes first.
        if (!m_pDismiss) {
            event->ignore();
            return true;
        }
        if (m_pWindow->isVisible())
            m_pDismiss->click();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
