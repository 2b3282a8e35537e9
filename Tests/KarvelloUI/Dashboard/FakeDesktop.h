#pragma once

#include "Platform/Services/DesktopTools.h"
#include "Platform/Services/FileDialogs.h"
#include "Platform/Services/FileViewer.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace DashboardTests {

/// Answers at once.
class FakeFileViewer final : public Platform::FileViewer {
public:
    void select(const Platform::FileURL& item, Answer answer) override
    {
        selected.push_back(item.path());
        answer(canSelect);
    }
    void open(const Platform::FileURL& folder, Answer answer) override
    {
        opened.push_back(folder.path());
        answer(canOpen);
    }

    bool canSelect = true;
    bool canOpen = true;
    std::vector<std::string> selected;
    std::vector<std::string> opened;
};

/// Stays open until somebody answers.
class FakeFileDialogs final : public Platform::FileDialogs {
public:
    void chooseFolder(FolderRequest request, Answer answer) override
    {
        folderRequests.push_back(std::move(request));
        m_answer = std::move(answer);
    }
    void chooseDestination(SaveRequest request, Answer answer) override
    {
        saveRequests.push_back(std::move(request));
        m_answer = std::move(answer);
    }

    [[nodiscard]] bool isOpen() const { return static_cast<bool>(m_answer); }
    void answer(std::optional<Platform::FileURL> picked)
    {
        const Answer answer = std::exchange(m_answer, {});
        answer(std::move(picked));
    }

    std::vector<FolderRequest> folderRequests;
    std::vector<SaveRequest> saveRequests;

private:
    Answer m_answer;
};

class FakeDesktopTools final : public Platform::DesktopTools {
public:
    void openSystemMonitor(Answer answer) override
    {
        ++systemMonitorRequests;
        answer(hasTools);
    }
    void openPrivacySettings(Answer answer) override
    {
        ++privacySettingsRequests;
        answer(hasTools);
    }
    [[nodiscard]] bool hasPrivacySettings() const override { return isPrivacyOffered; }
    void copyText(const std::string& text) override { copied.push_back(text); }

    bool hasTools = true;
    bool isPrivacyOffered = true;
    int systemMonitorRequests = 0;
    int privacySettingsRequests = 0;
    std::vector<std::string> copied;
};

} // namespace DashboardTests
