#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQmlIntegration>

namespace KarvelloUI {

/// How full the disk is. Without a reading the fractions are 0, and a text says so.
struct HomeHero {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString pillText MEMBER pillText FINAL)
    Q_PROPERTY(QString percent MEMBER percent FINAL)
    Q_PROPERTY(QString freeText MEMBER freeText FINAL)
    Q_PROPERTY(QString usedText MEMBER usedText FINAL)
    Q_PROPERTY(QString reclaimableText MEMBER reclaimableText FINAL)
    Q_PROPERTY(double usedFraction MEMBER usedFraction FINAL)
    Q_PROPERTY(double reclaimableFraction MEMBER reclaimableFraction FINAL)

public:
    QString title = {};
    /// Empty without a reading.
    QString pillText = {};
    /// Of free space.
    QString percent = {};
    QString freeText = {};
    QString usedText = {};
    /// Empty if nothing was found.
    QString reclaimableText = {};
    /// Of the whole disk; the reclaimable part is a part of the used one.
    double usedFraction = 0;
    double reclaimableFraction = 0;

    friend bool operator==(const HomeHero&, const HomeHero&) = default;
};

/// One of the four steps from home to restore. It leads to a section.
struct HomeFlowStep {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString iconName MEMBER iconName FINAL)
    Q_PROPERTY(QString section MEMBER section FINAL)
    Q_PROPERTY(bool isDone MEMBER isDone FINAL)
    Q_PROPERTY(bool isCurrent MEMBER isCurrent FINAL)
    Q_PROPERTY(QString stateText MEMBER stateText FINAL)

public:
    QString title = {};
    QString detail = {};
    QString iconName = {};
    QString section = {};
    bool isDone = false;
    bool isCurrent = false;
    /// The state in words; empty for a step that is to come.
    QString stateText = {};

    friend bool operator==(const HomeFlowStep&, const HomeFlowStep&) = default;
};

/// A recommendation of the coach. It leads to a section.
struct HomeCoachCard {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString figure MEMBER figure FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString body MEMBER body FINAL)
    Q_PROPERTY(QString actionTitle MEMBER actionTitle FINAL)
    Q_PROPERTY(QString iconName MEMBER iconName FINAL)
    Q_PROPERTY(QString section MEMBER section FINAL)
    Q_PROPERTY(QString pillText MEMBER pillText FINAL)

public:
    QString figure = {};
    QString title = {};
    QString body = {};
    QString actionTitle = {};
    QString iconName = {};
    QString section = {};
    /// On the first one alone.
    QString pillText = {};

    friend bool operator==(const HomeCoachCard&, const HomeCoachCard&) = default;
};

/// A point of the storage timeline.
struct HomeTimelinePoint {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString kind MEMBER kind FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString figure MEMBER figure FINAL)
    Q_PROPERTY(QString date MEMBER date FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString actionTitle MEMBER actionTitle FINAL)
    Q_PROPERTY(QString section MEMBER section FINAL)

public:
    /// The raw value.
    QString kind = {};
    QString title = {};
    QString figure = {};
    /// Empty for what is told of the present.
    QString date = {};
    QString text = {};
    QString detail = {};
    /// Empty, like the section, for a point that leads nowhere.
    QString actionTitle = {};
    QString section = {};

    friend bool operator==(const HomeTimelinePoint&, const HomeTimelinePoint&) = default;
};

/// The texts of the page that depend on the language, and on whether a scan can start.
struct HomeTexts {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle FINAL)
    Q_PROPERTY(QString startScanTitle MEMBER startScanTitle FINAL)
    Q_PROPERTY(QString startScanReason MEMBER startScanReason FINAL)
    Q_PROPERTY(QString summary MEMBER summary FINAL)
    Q_PROPERTY(QString coachTitle MEMBER coachTitle FINAL)
    Q_PROPERTY(QString coachSubtitle MEMBER coachSubtitle FINAL)
    Q_PROPERTY(QString timelineTitle MEMBER timelineTitle FINAL)
    Q_PROPERTY(QString timelineSubtitle MEMBER timelineSubtitle FINAL)
    Q_PROPERTY(QString timelineEmptyText MEMBER timelineEmptyText FINAL)
    Q_PROPERTY(QString baselineTitle MEMBER baselineTitle FINAL)
    Q_PROPERTY(QStringList baselineLines MEMBER baselineLines FINAL)

public:
    QString title = {};
    QString subtitle = {};
    QString startScanTitle = {};
    /// Why no scan can start; empty if one can.
    QString startScanReason = {};
    /// What a scan would bring, and what is needed for it; empty once there is a report.
    QString summary = {};
    QString coachTitle = {};
    QString coachSubtitle = {};
    QString timelineTitle = {};
    QString timelineSubtitle = {};
    QString timelineEmptyText = {};
    QString baselineTitle = {};
    QStringList baselineLines = {};

    friend bool operator==(const HomeTexts&, const HomeTexts&) = default;
};

} // namespace KarvelloUI
