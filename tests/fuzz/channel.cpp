// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/urllistenerpeer.h"
#include "common/other/urllistenerpeer_p.h"
#include "fuzztarget.h"

#include <QLocalSocket>

// What another process writes to the single-instance channel.
static void fuzz(const QByteArray &input)
{
    static const UrlListenerPeer peer(nullptr, QStringLiteral("channel"));
    static auto *const listener = peer.findChild<UrlListenerPeerPrivate *>();
    static FedSocket<QLocalSocket> sender;
    static const auto connection = QObject::connect(&sender, SIGNAL(readyRead()), listener, SLOT(readUrl()));
    sender.feed(input);
}
