#pragma once

#include "CleanerCore/Audit/CleanupAuditEntry.h"
#include "KarvelloUI/Screens/Evidence/EvidenceScreenModel.h"
#include "Tests/KarvelloUI/Dashboard/HostileName.h"
#include "Tests/KarvelloUI/Dashboard/ScreenWindow.h"

#include <memory>
#include <string>

namespace EvidenceTests {

using namespace KarvelloUI;

/// A home with three caches, and the evidence screen's model over it.
class EvidenceTest : public DashboardTests::ScreenWindowTest {
protected:
    explicit EvidenceTest(std::string_view layoutOfHome = "home/.cache/pip/wheel size=64K age=90d\n"
                                                          "home/.cache/thumbnails/large/t.png size=16K age=90d\n"
                                                          "home/.cache/go-build/a size=300K age=90d\n")
        : ScreenWindowTest(layoutOfHome)
    {
        open();
    }
    ~EvidenceTest() override { m_window.reset(); }

    void open()
    {
        dashboard->selectSection(MacDashboardSection::reviewEvidence);
        settle();
        evidence = std::make_unique<EvidenceScreenModel>(*dashboard);
        center = evidence->restoreCenter();
    }

    /// The application is started again.
    void reopen()
    {
        evidence.reset();
        restart();
        open();
    }

    void scan()
    {
        dashboard->scanCleanup();
        settle();
    }
    /// Moves all that a scan finds to the Trash.
    void clean()
    {
        scan();
        dashboard->cleaner().selectAllCandidates();
        cleanSelected();
    }
    void cleanSelected()
    {
        dashboard->selectSection(MacDashboardSection::cleanup);
        dashboard->requestCleanSelected();
        dashboard->cleanSelected();
        settle();
        dashboard->selectSection(MacDashboardSection::reviewEvidence);
        settle();
    }
    void restore(int row)
    {
        center->toggle(keyOf(row));
        center->restore();
        settle();
    }

    [[nodiscard]] int count() const { return center->rows()->rowCount(); }
    [[nodiscard]] QVariant value(int row, RestoreCenterList::Role role) const
    {
        return center->rows()->index(row, 0).data(role);
    }
    [[nodiscard]] int keyOf(int row) const { return value(row, RestoreCenterList::keyRole).toInt(); }
    [[nodiscard]] std::string text(int row, RestoreCenterList::Role role) const
    {
        return value(row, role).toString().toStdString();
    }
    [[nodiscard]] std::string entry(int row, CleanupHistoryList::Role role) const
    {
        return evidence->history()->rows()->index(row, 0).data(role).toString().toStdString();
    }
    [[nodiscard]] ImpactBar bar(int index) const
    {
        return evidence->impactReport()->bars()->row(index).value<ImpactBar>();
    }

    std::unique_ptr<EvidenceScreenModel> evidence;
    RestoreCenterModel* center = nullptr;
};

} // namespace EvidenceTests
