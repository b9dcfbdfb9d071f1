// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/SmallMessageDlg.h"

#include "ui/widgets/Style.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTextEdit>

const DialogShape Shape = {"SmallMsg",
                           420,
                           {"HeaderLabel", QT_TRANSLATE_NOOP("SmallMsg", "Velmora Halvane")},
                           {"PixmapLabel", "img_Information.png"},
                           {},
                           {{"OkButton", QT_TRANSLATE_NOOP("SmallMsg", "OK")}},
                           DialogButton::Last,
                           DialogButton::Last,
                           "",
                           "BottomFrame"};

SmallMessageDlg::SmallMessageDlg(QWidget *parent)
    : QDialog(parent), m_Frame(this), m_pTextEdit(DialogFrame::addText(m_Frame.build(Shape)))
{
    // Beside the middle of the text, not beside its top.
    auto *body = findChild<QHBoxLayout *>(QStringLiteral("bodyLayout"));
    body->setContentsMargins(20, 8, 20, 8);
    body->setSpacing(12);
    body->setAlignment(m_Frame.label("PixmapLabel"), Qt::Alignment());
    m_Frame.dress();
    connect(m_Frame.button(DialogButton::Last), &QPushButton::clicked, this, &QDialog::accept);
}

void SmallMessageDlg::SetText(const QString &text, int leadingBlankLines)
{
    m_pTextEdit->clear();
    m_pTextEdit->setAlignment(Qt::AlignCenter);
    QTextCharFormat heading;
    heading.setFont(style::font(11));
    heading.setFontWeight(QFont::Bold);
    QTextCharFormat body;
    body.setFont(style::font(10));

    QTextCursor cursor = m_pTextEdit->textCursor();
    cursor.setBlockCharFormat(heading);
    cursor.insertBlock();
    if (leadingBlankLines < 2)
        cursor.insertBlock();
    cursor.setBlockCharFormat(body);
    const int textBlock = cursor.blockNumber();
    cursor.insertText(text, body);

    // The empty blocks take room above the text. The same room below keeps the text beside the picture.
    m_Frame.fitText(m_pTextEdit, textBlock);
}

void ShowUpdateMessage(const QString &text, int leadingBlankLines)
{
    // The parent may be deleted while the message is open, and deletes the message with it.
    QPointer<SmallMessageDlg> dialog = new SmallMessageDlg(QApplication::activeWindow());
    dialog->SetText(text, leadingBlankLines);
    dialog->exec();
    delete dialog;
}
