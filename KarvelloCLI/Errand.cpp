#include "KarvelloCLI/Errand.h"

#include "KarvelloCLI/AuditLog.h"
#include "KarvelloCLI/CommandOutput.h"
#include "KarvelloCLI/Conversation.h"
#include "KarvelloCLI/Messages.h"
#include "KarvelloCLI/ProgressLine.h"
#include "KarvelloCLI/Say.h"

#include <span>
#include <tuple>

namespace KarvelloCLI {

namespace {

struct ErrandWords {
    std::string noTerminal;
    std::string notShown;
    std::string nothingDone;
    std::string interruptedBefore;
    std::string interruptedAndLogged;
};

ErrandWords wordsOf(ErrandKind kind)
{
    if (kind == ErrandKind::restore) {
        return {
            .noTerminal = say("There is no terminal to ask on, so nothing was put back; --yes agrees beforehand."),
            .notShown = say("What would be put back could not be shown, so nothing was put back."),
            .nothingDone = say("Nothing was put back."),
            .interruptedBefore = say("Interrupted: nothing was put back."),
            .interruptedAndLogged = say("Interrupted: what was put back until then has been logged."),
        };
    }
    return {
        .noTerminal = say("There is no terminal to ask on, so nothing was moved; --yes agrees beforehand."),
        .notShown = say("What would be moved could not be shown, so nothing was moved."),
        .nothingDone = say("Nothing was moved."),
        .interruptedBefore = say("Interrupted: nothing was moved."),
        .interruptedAndLogged = say("Interrupted: what was moved until then has been logged."),
    };
}

Delivery tell(const Errand& errand, const CleanerCore::CleanupAuditEntry& entry, const ErrandSetting& setting,
    const Conversation& conversation)
{
    if (setting.common.format == OutputFormat::table) {
        const auto style =
            TextStyle::of(setting.common, setting.output.descriptor(), setting.home, setting.environment);
        return deliver(errand.account(style), setting.output, setting.fileManager);
    }
    std::ignore = conversation.say(errand.account(conversation.style()));
    return deliverAuditExport(std::span(&entry, 1), setting.common, setting.output, setting.fileManager);
}

CleanerCore::CleanupAuditEntry performShowingProgress(
    Errand& errand, const ErrandSetting& setting, const std::stop_token& stop)
{
    ProgressLine line(ProgressLine::Settings::of(setting.common, setting.home, setting.environment));
    return errand.perform(stop, [&line](const CleanerCore::ItemProgress& progress) { line.report(progress); });
}

} // namespace

bool mayBeAgreedTo(bool isConfirmed, ErrandKind kind)
{
    if (isConfirmed || Conversation::isPossible()) {
        return true;
    }
    printMessage(wordsOf(kind).noTerminal);
    return false;
}

ExitCode runErrand(Errand& errand, const ErrandSetting& setting, std::optional<Interruption>& interruption)
{
    const std::stop_token stop = interruption->token();
    const ErrandWords words = wordsOf(errand.kind());
    using Consent = Conversation::Consent;
    const Conversation conversation(
        setting.common, setting.isConfirmed ? Consent::isGiven : Consent::isAsked, setting.home, setting.environment);
    const TextStyle& style = conversation.style();
    if (!conversation.say(errand.preview(style) + "\n")) {
        printMessage(words.notShown);
        return ExitCode::refused;
    }
    switch (conversation.ask(errand.question(style), stop)) {
    case Answer::yes:
        break;
    case Answer::no:
        printMessage(words.nothingDone);
        return ExitCode::refused;
    case Answer::interrupted:
        printMessage(words.interruptedBefore);
        return ExitCode::interrupted;
    }

    interruption->insistOnAnEnd();
    const CleanerCore::CleanupAuditEntry entry = performShowingProgress(errand, setting, stop);
    const Logged logged = appendToAuditLog(setting.log, entry, setting.fileManager);
    if (!setting.output.isReplacedAtomically()) {
        interruption.reset();
    }
    const Delivery delivery = tell(errand, entry, setting, conversation);
    if (entry.wasCancelled) {
        printMessage(logged == Logged::yes ? words.interruptedAndLogged : say("Interrupted."));
    }
    const ExitCode code = errand.exitCode();
    const bool isTold = logged == Logged::yes && delivery == Delivery::written;
    return code == ExitCode::done && !isTold ? ExitCode::partial : code;
}

} // namespace KarvelloCLI
