// SPDX-License-Identifier: GPL-3.0-or-later
#include "clone/BlockReader.h"

#include "state/Globals.h"

#include <algorithm>

BlockReader::BlockReader(CloneSource &source, qint64 total, const std::array<char *, 2> &buffers)
    : m_source(source), m_total(total)
{
    for (std::size_t i = 0; i < buffers.size(); ++i)
        m_blocks[i].data = buffers[i];
    m_thread = std::thread([this] { run(); });
}

BlockReader::~BlockReader()
{
    m_end = true;
    m_free.release();
    m_thread.join();
}

const BlockReader::Block *BlockReader::next()
{
    if (m_taken > 0)
        m_free.release();
    if (m_taken * BlockSectors >= m_total)
        return nullptr;
    m_full.acquire();
    return &m_blocks[static_cast<std::size_t>(m_taken++ % 2)];
}

void BlockReader::run()
{
    std::size_t turn = 0;
    for (qint64 position = 0; position < m_total; position += BlockSectors) {
        m_free.acquire();
        Block &block = m_blocks[turn];
        block.position = position;
        block.sectors = std::min(m_total - position, BlockSectors);
        block.state = m_end || g_bAbortJob ? Block::Stopped : read(block);
        const bool last = block.state == Block::Stopped || block.state == Block::SourceGone;
        m_full.release();
        if (last)
            return;
        turn = 1 - turn;
    }
}

BlockReader::Block::State BlockReader::read(const Block &block)
{
    if (m_source.read(block.position, block.data, block.sectors, BlockSectors))
        return Block::Read;
    return m_source.answers(m_total) ? Block::Unreadable : Block::SourceGone;
}
