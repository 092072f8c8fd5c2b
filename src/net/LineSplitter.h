#pragma once

#include "net/SSEFrameParser.h"

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>
#include <utility>

namespace kiv::net {

/// Cuts a stream of bytes into lines that end in LF, CR LF or a lone CR, however the bytes are cut
/// into pieces. A byte-order mark before the first line is dropped. Keeps at most the unfinished
/// line; one that grows past streamEventLimit throws APIError (transport).
class LineSplitter {
public:
    /// Calls `onLine(QByteArrayView)` for every line that `piece` completes; the view is valid
    /// during the call.
    template <typename OnLine>
    void feed(QByteArrayView piece, OnLine &&onLine) {
        Ends ends(piece);
        qsizetype start = 0;
        if (std::exchange(m_afterReturn, false) && piece.startsWith('\n'))
            start = 1;
        for (qsizetype end = ends.next(start); end < piece.size(); end = ends.next(start)) {
            complete(piece.sliced(start, end - start), onLine);
            start = end + 1;
            if (piece.at(end) == '\r') {
                if (start == piece.size())
                    m_afterReturn = true;
                else if (piece.at(start) == '\n')
                    ++start;
            }
        }
        keep(piece.sliced(start));
    }

private:
    /// Finds line ends in one pass: either kind is searched again only past its last find.
    class Ends {
    public:
        explicit Ends(QByteArrayView piece) : m_piece(piece) {}
        /// The first line end at or after `from`; the size of the piece when there is none.
        qsizetype next(qsizetype from) {
            return std::min(find(m_lineFeed, '\n', from), find(m_return, '\r', from));
        }

    private:
        qsizetype find(qsizetype &last, char end, qsizetype from) const {
            if (last < from) {
                last = m_piece.indexOf(end, from);
                if (last < 0)
                    last = m_piece.size();
            }
            return last;
        }
        QByteArrayView m_piece;
        qsizetype m_lineFeed = -1;
        qsizetype m_return = -1;
    };

    template <typename OnLine>
    void complete(QByteArrayView tail, OnLine &&onLine) {
        if (m_unfinished.isEmpty() && !m_first) {
            onLine(tail);
            return;
        }
        keep(tail);
        const QByteArray line = std::exchange(m_unfinished, QByteArray());
        QByteArrayView text = line;
        if (std::exchange(m_first, false) && text.startsWith("\xEF\xBB\xBF"))
            text = text.sliced(3);
        onLine(text);
    }

    void keep(QByteArrayView text) {
        if (m_unfinished.size() + text.size() > streamEventLimit)
            throwEventTooLarge();
        m_unfinished += text;
    }

    QByteArray m_unfinished;
    bool m_first = true;
    bool m_afterReturn = false;
};

} // namespace kiv::net
