#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace CleanerCore {

/// Keeps the best N of any number of elements under a preference, `prefers(a, b)`: a strict order that puts the better
/// one first. Memory for N elements, and about log N comparisons for each one offered. A newcomer that is no better than
/// the worst one kept does not displace it.
template <typename Element, typename Prefers>
class BoundedTopN {
public:
    /// A capacity below 1 keeps nothing.
    explicit BoundedTopN(std::int64_t capacity, Prefers prefers = {})
        : m_capacity(static_cast<std::size_t>(std::max<std::int64_t>(capacity, 0)))
        , m_prefers(std::move(prefers))
    {
    }

    /// Whether `insert` would keep the element: asked before something costly is made for it.
    [[nodiscard]] bool wouldKeep(const Element& element) const
    {
        return m_capacity > 0 && (m_heap.size() < m_capacity || std::invoke(m_prefers, element, m_heap.front()));
    }

    void insert(Element element)
    {
        if (!wouldKeep(element)) {
            return;
        }
        if (m_heap.size() < m_capacity) {
            m_heap.push_back(std::move(element));
            siftUp();
        } else {
            m_heap.front() = std::move(element);
            siftDown();
        }
    }

    /// What was kept, the best first. Elements that prefer neither come in the order of the heap.
    [[nodiscard]] std::vector<Element> takeSorted() &&
    {
        std::ranges::stable_sort(m_heap, m_prefers);
        return std::move(m_heap);
    }

private:
    void siftUp()
    {
        auto index = m_heap.size() - 1;
        while (index > 0) {
            const auto parent = (index - 1) / 2;
            if (!std::invoke(m_prefers, m_heap[parent], m_heap[index])) {
                return;
            }
            std::swap(m_heap[parent], m_heap[index]);
            index = parent;
        }
    }

    void siftDown()
    {
        std::size_t index = 0;
        while (true) {
            auto worst = index;
            for (const auto child : {2 * index + 1, 2 * index + 2}) {
                if (child < m_heap.size() && std::invoke(m_prefers, m_heap[worst], m_heap[child])) {
                    worst = child;
                }
            }
            if (worst == index) {
                return;
            }
            std::swap(m_heap[worst], m_heap[index]);
            index = worst;
        }
    }

    std::size_t m_capacity;
    Prefers m_prefers;
    /// Each parent is the less preferred of its pairs, so the worst stands in front.
    std::vector<Element> m_heap;
};

} // namespace CleanerCore
