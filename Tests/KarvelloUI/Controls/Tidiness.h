#pragma once

#include <QQuickItem>
#include <QString>
#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace KarvelloUI {

/// Looks at all texts below an item as somebody who sees them does: each lies within its page and within the sheets and
/// controls that it is on, ends in an ellipsis if it has no room, and does not lie on another one.
class Tidiness {
public:
    /// What is wrong, a sentence each.
    [[nodiscard]] static std::vector<std::string> faultsOf(const QQuickItem& root)
    {
        Tidiness tidiness(root);
        tidiness.visit(root, placeOf(root));
        tidiness.compare();
        return tidiness.m_faults;
    }
    /// How many texts can be seen, so that a look at nothing is no success.
    [[nodiscard]] static std::size_t countTexts(const QQuickItem& root)
    {
        Tidiness tidiness(root);
        tidiness.visit(root, placeOf(root));
        return tidiness.m_texts.size();
    }

private:
    struct ShownText {
        const QQuickItem* item;
        /// Of what is painted, as far as nothing clips it.
        QRectF ink;
    };

    explicit Tidiness(const QQuickItem& root)
        : m_root(root)
    {
    }

    static QRectF placeOf(const QQuickItem& item)
    {
        return item.mapRectToScene(QRectF(0, 0, item.width(), item.height()));
    }
    static std::string described(const QQuickItem& text)
    {
        return '"' + text.property("text").toString().toStdString() + '"';
    }

    static QRectF inkOf(const QQuickItem& text)
    {
        const double width = std::min(text.width(), text.property("contentWidth").toDouble());
        const double height = std::min(text.height(), text.property("contentHeight").toDouble());
        const double free = text.width() - width;
        const int across = text.property("effectiveHorizontalAlignment").toInt();
        const double left = across == Qt::AlignRight ? free : across == Qt::AlignHCenter ? free / 2 : 0;
        const int along = text.property("verticalAlignment").toInt();
        const double top = along == Qt::AlignBottom ? text.height() - height
            : along == Qt::AlignVCenter             ? (text.height() - height) / 2
                                                    : 0;
        return text.mapRectToScene(QRectF(left, top, width, height));
    }

    void visit(const QQuickItem& item, const QRectF& window)
    {
        if (!item.isVisible() || item.opacity() <= 0) {
            return;
        }
        if (item.inherits("QQuickText") && !item.property("text").toString().isEmpty()) {
            look(item, window);
        }
        const QRectF inner = item.clip() ? window.intersected(placeOf(item)) : window;
        for (const auto* const child : item.childItems()) {
            visit(*child, inner);
        }
    }

    void look(const QQuickItem& text, const QRectF& window)
    {
        const QRectF ink = inkOf(text);
        if (!ink.intersects(window)) {
            return;
        }
        const QRectF seen = ink.intersected(window);
        m_texts.push_back({.item = &text, .ink = seen});
        const QRectF page = placeOf(m_root);
        if (ink.left() < page.left() - kTolerance || ink.right() > page.right() + kTolerance) {
            m_faults.push_back(described(text) + " reaches over the side of the page");
        }
        if (text.width() < 1 || text.property("contentWidth").toDouble() > text.width() + kTolerance) {
            m_faults.push_back(described(text) + " is wider than its place");
        }
        // What has an ellipsis is not higher than its place.
        if (text.property("contentHeight").toDouble() > text.height() + kTolerance) {
            m_faults.push_back(described(text) + " is higher than its place");
        }
        for (const auto* ground = text.parentItem(); ground != nullptr && ground != &m_root;
            ground = ground->parentItem()) {
            const bool isSheet = ground->inherits("QQuickRectangle") || ground->inherits("QQuickControl");
            if (isSheet
                && !placeOf(*ground).adjusted(-kTolerance, -kTolerance, kTolerance, kTolerance).contains(seen)) {
                m_faults.push_back(described(text) + " reaches out of its " + ground->metaObject()->className());
            }
        }
    }

    void compare()
    {
        for (std::size_t first = 0; first < m_texts.size(); ++first) {
            for (std::size_t second = first + 1; second < m_texts.size(); ++second) {
                const QRectF common = m_texts[first].ink.intersected(m_texts[second].ink);
                // Lines have some air above and below their letters.
                if (common.width() > 1 && common.height() > 3) {
                    m_faults.push_back(
                        described(*m_texts[first].item) + " lies on " + described(*m_texts[second].item));
                }
            }
        }
    }

    static constexpr double kTolerance = 1;

    const QQuickItem& m_root;
    std::vector<ShownText> m_texts;
    std::vector<std::string> m_faults;
};

} // namespace KarvelloUI
