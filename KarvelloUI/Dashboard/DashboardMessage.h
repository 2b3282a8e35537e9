#pragma once

#include <QMetaType>
#include <QString>
#include <QUuid>

namespace KarvelloUI {

/// Something to tell the user of: a failure to dismiss, or a soft note. Two with the same words are two.
struct DashboardMessage {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString message MEMBER message CONSTANT FINAL)

public:
    QUuid id = QUuid::createUuid();
    QString title = {};
    QString message = {};
};

/// A failure, to be dismissed.
using FinderRevealAlert = DashboardMessage;
/// What went another way than asked for.
using FinderRevealNotice = DashboardMessage;

} // namespace KarvelloUI
