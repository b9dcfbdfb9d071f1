#include "ui/window/MainWindow.h"

#include "state/Languages.h"

void MainWindow::OnChangeEnglishLanguage()
{
    languages::change(0);
}

void MainWindow::OnChangeGermanLanguage()
{
    languages::change(1);
}

void MainWindow::OnChangeFrenchLanguage()
{
    languages::change(2);
}

void MainWindow::OnChangeItalianLanguage()
{
    languages::change(3);
}

void MainWindow::OnChangeSpanishLanguage()
{
    languages::change(4);
}

void MainWindow::OnChangeJapneaseLanguage()
{
    languages::change(5);
}

void MainWindow::OnChangeChineaseLanguage()
{
    languages::change(6);
}

void MainWindow::OnChangeKoreanLanguage()
{
    languages::change(7);
}

void MainWindow::OnChangeDutchLanguage()
{
    languages::change(8);
}

void MainWindow::OnChangeBrazilLanguage()
{
    languages::change(9);
}

void MainWindow::OnChangeHindiLanguage()
{
    languages::change(10);
}
