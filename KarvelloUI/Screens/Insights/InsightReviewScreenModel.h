#pragma once

#include "KarvelloUI/Screens/Insights/InsightScreenModel.h"

namespace KarvelloUI {

/// A screen on which files are selected for the Trash: adds what its footer says and does. The move itself only starts
/// behind the dashboard's confirmation.
// The base is named in full for the tool that writes down the types: it looks for exactly this name.
class InsightReviewScreenModel : public KarvelloUI::InsightScreenModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A screen has it.")
    /// Nothing can be selected on a screen without a footer.
    Q_PROPERTY(bool hasFooter READ hasFooter CONSTANT FINAL)
    Q_PROPERTY(QString selectionTitle READ selectionTitle NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString selectionText READ selectionText NOTIFY selectionChanged FINAL)
    Q_PROPERTY(Qt::CheckState selectionState READ selectionState NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString toggleAllName READ toggleAllName NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString clearText READ clearText NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool canClear READ canClear NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString selectAllText READ selectAllText NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool canSelectAll READ canSelectAll NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString moreName READ moreName NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString cleanText READ cleanText NOTIFY selectionChanged FINAL)
    Q_PROPERTY(bool canClean READ canClean NOTIFY selectionChanged FINAL)
    Q_PROPERTY(QString cleanDisabledReason READ cleanDisabledReason NOTIFY selectionChanged FINAL)
    /// What menus and details of rows say.
    Q_PROPERTY(QString revealText READ revealText NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString whyText READ whyText NOTIFY stateChanged FINAL)
    Q_PROPERTY(QString notSelectableText READ notSelectableText NOTIFY stateChanged FINAL)

public:
    [[nodiscard]] bool hasFooter() const { return m_files != MacInsightFileSection::security; }
    [[nodiscard]] QString selectionTitle() const;
    [[nodiscard]] QString selectionText() const;
    [[nodiscard]] Qt::CheckState selectionState() const;
    [[nodiscard]] QString toggleAllName() const;
    [[nodiscard]] QString clearText() const;
    [[nodiscard]] bool canClear() const;
    [[nodiscard]] QString selectAllText() const;
    [[nodiscard]] bool canSelectAll() const;
    [[nodiscard]] QString moreName() const;
    [[nodiscard]] QString cleanText() const;
    [[nodiscard]] bool canClean() const { return canClear(); }
    [[nodiscard]] QString cleanDisabledReason() const;
    [[nodiscard]] QString revealText() const;
    [[nodiscard]] QString whyText() const;
    [[nodiscard]] QString notSelectableText() const;

    /// None of these does anything while the session works.
    Q_INVOKABLE void selectAll();
    Q_INVOKABLE void clearSelection();
    /// All, or none if all are selected.
    Q_INVOKABLE void toggleAll();
    /// Asks for the confirmation.
    Q_INVOKABLE void requestClean();

Q_SIGNALS:
    /// What the footer says or lets one do, the language as well.
    void selectionChanged();

protected:
    InsightReviewScreenModel(
        MacCleanerDashboardModel& dashboard, MacDashboardSection section, MacInsightFileSection files, QObject* parent);

    [[nodiscard]] MacInsightFileSection files() const { return m_files; }
    [[nodiscard]] std::string purposeLine() const override;
    [[nodiscard]] std::string nothingFoundText() const override;
    [[nodiscard]] bool isDuplicates() const { return m_files == MacInsightFileSection::duplicates; }

private:
    /// Counted anew when the selection or the report changes.
    struct Figures {
        std::int64_t selectable = 0;
        std::int64_t selected = 0;
        std::int64_t selectedBytes = 0;
    };

    void countSelection();

    MacInsightFileSection m_files;
    Figures m_figures;
};

} // namespace KarvelloUI
