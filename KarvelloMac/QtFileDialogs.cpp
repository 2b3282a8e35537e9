#include "KarvelloMac/QtFileDialogs.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <utility>

namespace KarvelloMac {

namespace {

QString toQString(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace

QtFileDialogs::~QtFileDialogs()
{
    delete m_open;
}

void QtFileDialogs::chooseFolder(FolderRequest request, Answer answer)
{
    auto* const dialog = new QFileDialog(nullptr, toQString(request.message));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setLabelText(QFileDialog::Accept, toQString(request.prompt));
    dialog->setDirectory(QString::fromLocal8Bit(request.directory.path()));
    open(dialog, Platform::DirectoryHint::isFolder, std::move(answer));
}

void QtFileDialogs::chooseDestination(SaveRequest request, Answer answer)
{
    auto* const dialog = new QFileDialog(nullptr, toQString(request.message));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDirectory(QString::fromLocal8Bit(request.directory.path()));
    dialog->selectFile(toQString(request.suggestedName));
    open(dialog, Platform::DirectoryHint::isFile, std::move(answer));
}

void QtFileDialogs::open(QFileDialog* dialog, Platform::DirectoryHint hint, Answer answer)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (m_open) {
        delete dialog;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [answer = std::move(answer)] { answer(std::nullopt); }, Qt::QueuedConnection);
        return;
    }
    m_open = dialog;
    QObject::connect(
        dialog, &QFileDialog::finished, dialog, [this, dialog, hint, answer = std::move(answer)](int result) {
            const QStringList picked = dialog->selectedFiles();
            m_open.clear();
            if (result == QFileDialog::Accepted && !picked.isEmpty()) {
                answer(Platform::FileURL(picked.constFirst().toLocal8Bit().toStdString(), hint));
            } else {
                answer(std::nullopt);
            }
        });
    dialog->open();
}

} // namespace KarvelloMac
