// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/CloneCopy.h"

#include "state/Globals.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace
{

constexpr qint64 PieceSectors = 128; ///< 64 KiB
/// After so many refusals in a row the disk itself is checked: a dead one refuses everything.
constexpr qint64 SuspectRefusals = 2048;

qint64 roundedUp(qint64 sectors, qint64 unit)
{
    return (sectors + unit - 1) / unit * unit;
}

} // namespace

CloneCopy::CloneCopy(CloneSource &source, CloneDestination &destination, qint64 total, Listener listener)
    : m_source(source), m_destination(destination), m_total(total), m_listener(std::move(listener))
{
    m_outcome.total = total;
}

CloneOutcome CloneCopy::run(const std::array<char *, 2> &buffers)
{
    copyBlocks(buffers);
    if (goesOn())
        copySkipped(buffers.front());
    if (m_outcome.fault != CloneFault::None)
        m_outcome.end = CloneOutcome::End::Failed;
    else if (m_stopped || g_bAbortJob)
        m_outcome.end = CloneOutcome::End::Stopped;
    else if (m_outcome.lost.any())
        m_outcome.end = CloneOutcome::End::WithErrors;
    return m_outcome;
}

/// A stop that was seen once holds, even if the request is taken back afterwards.
bool CloneCopy::goesOn()
{
    m_stopped = m_stopped || g_bAbortJob;
    return !m_stopped && m_outcome.fault == CloneFault::None;
}

void CloneCopy::fail(CloneFault fault)
{
    if (m_outcome.fault == CloneFault::None)
        m_outcome.fault = fault;
}

void CloneCopy::copyBlocks(const std::array<char *, 2> &buffers)
{
    BlockReader reader(m_source, m_total, buffers);
    while (const BlockReader::Block *block = goesOn() ? reader.next() : nullptr) {
        if (block->state == BlockReader::Block::SourceGone)
            fail(CloneFault::SourceGone);
        if (block->state == BlockReader::Block::Stopped)
            m_stopped = true;
        if (!goesOn())
            return;
        if (block->state == BlockReader::Block::Unreadable) {
            m_skipped.push_back({block->position, block->sectors});
            continue;
        }
        const auto step = [this, block] { m_listener.onStep(block->position); };
        const auto lost =
            write(block->position, block->data, block->sectors, BlockReader::BlockSectors, step);
        for (const SectorRun &run : lost)
            m_outcome.lost.unwritten.add(run.first, run.count);
    }
}

void CloneCopy::copySkipped(char *buffer)
{
    qint64 skipped = 0;
    for (const SectorRun &block : m_skipped)
        skipped += block.count;
    qint64 left = skipped;
    for (const SectorRun &block : m_skipped) {
        const qint64 end = block.first + block.count;
        for (qint64 position = block.first; position < end; position += PieceSectors) {
            const qint64 sectors = std::min(PieceSectors, end - position);
            if (!goesOn())
                return;
            copyPiece(position, sectors, buffer);
            left -= sectors;
            m_listener.onSkipped(left, skipped);
        }
    }
}

void CloneCopy::copyPiece(qint64 position, qint64 sectors, char *buffer)
{
    const qint64 room = roundedUp(sectors, m_destination.unit());
    std::memset(buffer, 0, static_cast<std::size_t>(PieceSectors * SectorSize));
    std::vector<bool> unread(static_cast<std::size_t>(sectors), false);
    if (!m_source.read(position, buffer, sectors, sectors))
        unread = readSectors(position, sectors, buffer);
    if (!goesOn())
        return;
    const auto lost = write(position, buffer, sectors, room, [] {});
    for (const SectorRun &run : lost) {
        m_outcome.lost.unwritten.add(run.first, run.count);
        for (qint64 i = 0; i < run.count; ++i)
            unread[static_cast<std::size_t>(run.first - position + i)] = false;
    }
    if (!goesOn())
        return;
    for (qint64 i = 0; i < sectors; ++i) {
        if (unread[static_cast<std::size_t>(i)])
            m_outcome.lost.unread.add(position + i, 1);
    }
}

std::vector<bool> CloneCopy::readSectors(qint64 position, qint64 sectors, char *buffer)
{
    std::vector<bool> unread(static_cast<std::size_t>(sectors), false);
    bool any = false;
    for (qint64 at = 0; at < sectors && goesOn(); at += m_source.unit()) {
        const qint64 count = std::min(m_source.unit(), sectors - at);
        char *place = buffer + at * SectorSize;
        if (m_source.read(position + at, place, count, count)) {
            any = true;
            continue;
        }
        std::memset(place, 0, static_cast<std::size_t>(count * SectorSize));
        std::fill_n(unread.begin() + at, count, true);
        if (m_source.isGone())
            fail(CloneFault::SourceGone);
    }
    if (!any && goesOn() && !m_source.answers(m_total))
        fail(CloneFault::SourceGone);
    return unread;
}

std::vector<SectorRun> CloneCopy::write(qint64 position, char *buffer, qint64 sectors, qint64 room,
                                        const std::function<void()> &onSector)
{
    if (m_destination.write(position, buffer, sectors, room)) {
        onSector();
        return {};
    }
    if (m_destination.isGone() || (m_destination.everTook() && !m_destination.answers())) {
        fail(CloneFault::DestinationGone);
        return {};
    }
    return writeSectors(position, buffer, sectors, onSector);
}

std::vector<SectorRun> CloneCopy::writeSectors(qint64 position, char *buffer, qint64 sectors,
                                               const std::function<void()> &onSector)
{
    SectorRuns lost;
    const qint64 unit = m_destination.unit();
    qint64 refused = 0;
    for (qint64 at = 0; at < sectors && goesOn(); at += unit) {
        const qint64 count = std::min(unit, sectors - at);
        if (m_destination.write(position + at, buffer + at * SectorSize, count, unit)) {
            onSector();
            refused = 0;
            continue;
        }
        lost.add(position + at, count);
        const bool suspect = ++refused % SuspectRefusals == 0 || refused * unit >= sectors;
        if (m_destination.isGone() || (suspect && !m_destination.answers()))
            fail(m_destination.isGone() || m_destination.everTook() ? CloneFault::DestinationGone
                                                                    : CloneFault::DestinationTakesNothing);
    }
    return lost.runs();
}
