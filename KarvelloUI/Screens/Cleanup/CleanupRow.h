#pragma once

#include <QMetaType>
#include <QString>
#include <QVariantList>

namespace KarvelloUI {

/// The words of one candidate in the list.
struct CleanupRow {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString path MEMBER path CONSTANT FINAL)
    Q_PROPERTY(QString reason MEMBER reason CONSTANT FINAL)
    Q_PROPERTY(QString warning MEMBER warning CONSTANT FINAL)
    Q_PROPERTY(QString age MEMBER age CONSTANT FINAL)
    Q_PROPERTY(QString size MEMBER size CONSTANT FINAL)
    Q_PROPERTY(QString iconName MEMBER iconName CONSTANT FINAL)
    Q_PROPERTY(QString pillText MEMBER pillText CONSTANT FINAL)
    Q_PROPERTY(int pillKind MEMBER pillKind CONSTANT FINAL)

public:
    QString name = {};
    QString path = {};
    QString reason = {};
    /// That an application has it in use; empty where none is known to.
    QString warning = {};
    QString age = {};
    QString size = {};
    QString iconName = {};
    QString pillText = {};
    /// A `KarvelloPillKind`.
    int pillKind = 0;
};

/// The words over a section of the list.
struct CleanupSectionHead {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString count MEMBER count CONSTANT FINAL)
    Q_PROPERTY(QString note MEMBER note CONSTANT FINAL)
    Q_PROPERTY(QString total MEMBER total CONSTANT FINAL)
    Q_PROPERTY(QString selection MEMBER selection CONSTANT FINAL)
    Q_PROPERTY(int checkState MEMBER checkState CONSTANT FINAL)
    Q_PROPERTY(bool isOpen MEMBER isOpen CONSTANT FINAL)
    Q_PROPERTY(QString openText MEMBER openText CONSTANT FINAL)
    Q_PROPERTY(int row MEMBER row CONSTANT FINAL)

public:
    QString id = {};
    QString name = {};
    QString count = {};
    QString note = {};
    QString total = {};
    /// What is said of its selection.
    QString selection = {};
    /// A `Qt::CheckState`.
    int checkState = 0;
    bool isOpen = true;
    /// What is said of that.
    QString openText = {};
    /// Its own, -1 without one.
    int row = -1;
};

/// The one thing that needs attention, over the list.
struct CleanupBanner {
    Q_GADGET
    Q_PROPERTY(int kind MEMBER kind CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QString actionText MEMBER actionText CONSTANT FINAL)
    Q_PROPERTY(QString iconName MEMBER iconName CONSTANT FINAL)
    Q_PROPERTY(bool canClose MEMBER canClose CONSTANT FINAL)

public:
    /// In the order of the kinds of `KarvelloBanner`.
    enum Kind : int { notice, accent, caution, review };

    int kind = notice;
    QString title = {};
    QString text = {};
    QString actionText = {};
    QString iconName = {};
    bool canClose = false;
};

} // namespace KarvelloUI
