#include "ui/dialogs/SmallMessageDlg.h"

#include "ui/widgets/Style.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QTextBlock>

SmallMessageDlg::SmallMessageDlg(QWidget *parent) : QDialog(parent), m_Frame(this)
{
    setupUi(this);
    m_Frame.dress({HeaderLabel, PixmapLabel, QStringLiteral("img_Information.png"), OkButton, OkButton});
    textEdit->setFont(style::font(10));
    textEdit->setStyleSheet(QStringLiteral("QTextEdit{background: transparent; color: #000000;}"));
    textEdit->document()->setDocumentMargin(0);
    connect(OkButton, &QPushButton::clicked, this, &QDialog::accept);
}

void SmallMessageDlg::SetText(const QString &text, int leadingBlankLines)
{
    textEdit->clear();
    textEdit->setAlignment(Qt::AlignCenter);
    QTextCharFormat heading;
    heading.setFont(style::font(11));
    heading.setFontWeight(QFont::Bold);
    QTextCharFormat body;
    body.setFont(style::font(10));

    QTextCursor cursor = textEdit->textCursor();
    cursor.setBlockCharFormat(heading);
    cursor.insertBlock();
    if (leadingBlankLines < 2)
        cursor.insertBlock();
    cursor.setBlockCharFormat(body);
    const int textBlock = cursor.blockNumber();
    cursor.insertText(text, body);

    // As high as the text, so that nothing scrolls, and with as much room below as the empty blocks take
    // above, so that the text stands beside the picture.
    m_Frame.fit();
    layout()->activate();
    QTextDocument *document = textEdit->document();
    document->setTextWidth(textEdit->viewport()->width());
    const QRectF first =
        document->documentLayout()->blockBoundingRect(document->findBlockByNumber(textBlock));
    textEdit->setFixedHeight(static_cast<int>(document->size().height() + first.top()) + style::px(2));
    m_Frame.fit();
}

void SmallMessageDlg::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi(this);
    QDialog::changeEvent(event);
}
