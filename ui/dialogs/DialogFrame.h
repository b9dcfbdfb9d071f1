// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/widgets/FramelessDrag.h"

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QTextEdit;
class QVBoxLayout;
class QWidget;

/// A widget of a dialog: its object name and its English text. Without a text it is filled later.
struct DialogWord {
    const char *name = nullptr;
    const char *text = nullptr;
};

enum class DialogButton { None, First, Last };

/// What a dialog shows: title strip, picture, lines of text, and buttons at the right. Escape presses the
/// last button.
struct DialogShape {
    const char *context; ///< of the texts' translations; the object name of the window too
    int width;           ///< design pixels
    DialogWord title;
    DialogWord picture;            ///< its text is the file; without a name there is no picture
    std::vector<DialogWord> lines; ///< where there are several, the first is the heading
    std::vector<DialogWord> buttons;
    DialogButton main = DialogButton::Last;    ///< blue, pressed by Enter in a field; loses nothing
    DialogButton initial = DialogButton::Last; ///< has the focus when the dialog shows
    const char *frame = "MainFrame";           ///< name of the frame about picture and lines
    const char *bottomFrame = "";              ///< name of the frame about the buttons
    bool ownTitle = false;                     ///< the window has the strip's title, not the product's name
};

/// Makes a top-level widget one of the product's dialogs: no system frame, white with a hairline border and a
/// title strip, draggable, scaled to the display. The window has its design width, or more for long button
/// texts. Its height follows its texts; word-wrapped labels without text take no room. The window must
/// outlive it.
class DialogFrame : public QObject
{
public:
    explicit DialogFrame(QWidget *window);

    /// Fills the empty window with the widgets of a shape. From then on their texts follow the language.
    /// Returns the column of the lines, where a dialog may add widgets. Call dress() behind that.
    QVBoxLayout *build(const DialogShape &shape);
    /// Dresses the window that build() filled. Call it once, when all widgets are there.
    void dress();
    /// The same for a window with a form. The system's close command presses `dismiss`, Enter presses `main`,
    /// and Escape just hides the window.
    void dress(QLabel *title, QPushButton *dismiss, QPushButton *main);
    /// Calls `translate` now and after each change of language.
    void keepTranslated(std::function<void()> translate);

    /// A button of the shape; null where there is none.
    QPushButton *button(DialogButton which) const;
    /// Puts other texts in place of the title and of the first two lines. They stay as they are when the
    /// language changes.
    void setTexts(const QString &title, const QString &first, const QString &second);
    QLabel *label(const char *name) const;

    /// Append an empty widget to a layout
    static QLabel *addLabel(QBoxLayout *layout, const char *name);
    static QLabel *addLink(QBoxLayout *layout, const char *name); ///< of rich text
    static QProgressBar *addBar(QBoxLayout *layout);              ///< called progressBar
    static QTextEdit *addText(QBoxLayout *layout);                ///< called textEdit, read only

    /// Makes a text edit as high as its text, so that nothing scrolls, and fits the window. Below the text it
    /// leaves as much room as there is above the block number `block`.
    void fitText(QTextEdit *text, int block = 0);

    /// Adapts the window's size to its texts; its centre stays. Runs by itself when the window is shown and
    /// when a visible text changes.
    void fit();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addBody(QVBoxLayout *rows);
    void addButtons(QVBoxLayout *rows);
    void translate() const;
    void styleTexts() const;
    void styleButtons() const;
    void widenButtons() const;
    void paint() const;
    bool keyPressed(int key) const;

    QWidget *m_pWindow;
    DialogShape m_Shape{};
    bool m_bTextsSet = false; ///< setTexts() was called
    QVBoxLayout *m_pTexts = nullptr;
    std::vector<QLabel *> m_apLines;
    std::vector<QPushButton *> m_apButtons;
    QLabel *m_pTitle = nullptr;
    QPushButton *m_pDismiss = nullptr;
    QPushButton *m_pMain = nullptr;
    QPushButton *m_pInitial = nullptr;
    std::function<void()> m_translate;
    FramelessDrag m_Drag;
    int m_nDesignWidth = 0;
};
