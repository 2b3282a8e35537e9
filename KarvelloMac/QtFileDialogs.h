#pragma once

#include "Platform/Services/FileDialogs.h"

#include <QFileDialog>
#include <QPointer>

namespace KarvelloMac {

/// The dialogs that Qt has itself, for desktops without a portal. An open dialog is closed with this object.
class QtFileDialogs final : public Platform::FileDialogs {
public:
    QtFileDialogs() = default;
    ~QtFileDialogs() override;

    void chooseFolder(FolderRequest request, Answer answer) override;
    void chooseDestination(SaveRequest request, Answer answer) override;

private:
    void open(QFileDialog* dialog, Platform::DirectoryHint hint, Answer answer);

    QPointer<QFileDialog> m_open;
};

} // namespace KarvelloMac
