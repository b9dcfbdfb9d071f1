#pragma once

#include "ui/widgets/FramelessDrag.h"

#include <QObject>
#include <QString>

class QLabel;
class QPaintEvent;
class QPushButton;
class QWidget;

/// The parts of a dialog that all dialogs treat alike. Only `title` must be there.
struct DialogLook {
    QLabel *title = nullptr;
    QLabel *picture = nullptr;
    QString image; ///< file of the picture
    /// What Escape and the system's close command press; without one they do nothing.
    QPushButton *dismiss = nullptr;
    QPushButton *confirm = nullptr; ///< drawn as the main button
    QLabel *heading = nullptr;      ///< first line, where more lines follow
    QPushButton *initial = nullptr; ///< has the focus when the dialog shows; else `confirm`, else `dismiss`
};

/// Makes a top-level widget with a set-up form one of the product's dialogs: no system frame, white with a
/// hairline border and a title strip, draggable, scaled to the display. The window is as wide as designed, or
/// wider for long button texts, and as high as its texts need; word-wrapped labels without text take no room.
/// The window must outlive it.
class DialogFrame : public QObject
{
public:
    explicit DialogFrame(QWidget *window);

    /// Dresses the window; once, when its form has been set up.
    void dress(const DialogLook &look);

    /// Adapts the size to the texts, about the same centre. Runs by itself when the window is shown and when
    /// a visible text changes.
    void fit();

    /// Multiplies the margins, spacings and fixed sizes of a form by the display scale.
    static void scaleForm(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void styleTexts() const;
    void styleButtons() const;
    void widenButtons() const;
    void paint() const;
    bool keyPressed(int key) const;

    QWidget *m_pWindow;
    DialogLook m_Look;
    FramelessDrag m_Drag;
    int m_nDesignWidth = 0;
};
