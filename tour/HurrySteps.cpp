// SPDX-License-Identifier: GPL-3.0-or-later
#include "tour/HurryCheck.h"
#include "tour/Steps.h"
#include "tour/Walk.h"
#include "tour/Windows.h"

#include <QComboBox>

#include <algorithm>
#include <map>
#include <random>

namespace
{

const QString Wish = QStringLiteral("hurry");
constexpr int ChoicesPerLook = 5;
constexpr int ShortPause = 40; ///< ms, every other time
constexpr int LongPause = 400; ///< ms

/// The screens as they look without hurry, by place in the drive combo and screen.
using Patient = std::map<std::pair<int, QString>, QJsonObject>;

struct Hurry {
    Patient patient;
    std::mt19937 random;

    /// Random numbers below `end`, the same on every machine.
    int below(int end) { return static_cast<int>(random() % static_cast<unsigned>(end)); }
};

/// The page that shows; the first one if none does.
Page shownPage()
{
    const auto found = std::find_if(pages().cbegin(), pages().cend(), [](const Page &page) {
        return windows::byClass(QLatin1String(page.className)) != nullptr;
    });
    return found == pages().cend() ? pages().front() : *found;
}

/// The drive combo's text and index, and the screen that shows. GUI thread.
QJsonObject place()
{
    const QComboBox *drives =
        windows::combo(windows::byClass(QStringLiteral("MainWindow")), QStringLiteral("DriveCombobox"));
    return {{QStringLiteral("combo"), drives ? drives->currentText() : QString()},
            {QStringLiteral("index"), drives ? drives->currentIndex() : -1},
            {QStringLiteral("screen"), QLatin1String(shownPage().step)}};
}

void lookPatiently(Walk &walk, Hurry &hurry, int drive)
{
    walk.goTo(QLatin1String(pages().front().button), QLatin1String(pages().front().className));
    walk.selectDrive(drive);
    for (const Page &page : pages()) {
        walk.goTo(QLatin1String(page.button), QLatin1String(page.className));
        hurry.patient[{drive, QLatin1String(page.step)}] = hurrycheck::figures(walk.contents());
    }
}

void choose(Walk &walk, Hurry &hurry, int drives)
{
    if (hurry.below(2) == 0)
        walk.hurryToDrive(hurry.below(drives));
    else
        walk.hurryTo(
            QLatin1String(pages()[static_cast<std::size_t>(hurry.below(int(pages().size())))].button));
    walk.program().pause(hurry.below(hurry.below(2) == 0 ? ShortPause : LongPause));
}

void chooseAndLook(Walk &walk, Hurry &hurry, int choices, int drives)
{
    for (int choice = 0; choice < choices; ++choice)
        choose(walk, hurry, drives);
    walk.waitIdle();
    const QJsonObject where = walk.program().ask(place);
    walk.record(Wish, QStringLiteral("MainWindow"), where);
    const auto wanted = hurry.patient.find(
        {where[QStringLiteral("index")].toInt(), where[QStringLiteral("screen")].toString()});
    if (wanted == hurry.patient.end())
        throw StepFailed(QStringLiteral("nobody has seen this place in peace"));
    const QString wrong = hurrycheck::difference(wanted->second, hurrycheck::figures(walk.contents()));
    if (!wrong.isEmpty())
        throw StepFailed(wrong);
}

} // namespace

StepList hurrySteps(Walk &walk)
{
    const QJsonObject wish = walk.plan().wishes[Wish].toObject();
    const int choices = wish[QStringLiteral("choices")].toInt();
    const int drives = walk.driveCount();
    StepList steps;
    if (drives == 0)
        return steps;
    const auto hurry = std::make_shared<Hurry>();
    hurry->random.seed(static_cast<std::mt19937::result_type>(wish[QStringLiteral("seed")].toInt()));
    for (int drive = 0; drive < drives; ++drive)
        steps.push_back({QStringLiteral("drive %1 before the hurry").arg(drive),
                         [hurry, drive](Walk &person) { lookPatiently(person, *hurry, drive); }});
    for (int done = 0; done < choices; done += ChoicesPerLook)
        steps.push_back({QStringLiteral("hurry behind choice %1").arg(done), [=](Walk &person) {
                             chooseAndLook(person, *hurry, std::min(ChoicesPerLook, choices - done), drives);
                         }});
    return steps;
}
