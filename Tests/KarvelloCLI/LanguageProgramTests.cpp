#include "KarvelloCLI/TerminalText.h"
#include "Tests/KarvelloCLI/CleanProgramFixture.h"
#include "Tests/KarvelloCLI/TextLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

namespace KarvelloCLITests {

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

const std::vector<std::string> kCodes{"ko", "en", "ja", "zh-Hans", "zh-Hant", "es", "fr", "de"};

/// The built program in other languages than English.
class LanguageProgram : public CleanProgram {
protected:
    [[nodiscard]] ProgramResult speaking(const std::string& code, std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.end(), {"--language", code});
        return run(std::move(arguments));
    }

    /// Cleans, looks at the log, restores and asks for what nobody has: the chief lines, in their order.
    void expectACleanAndItsWayBack(const std::string& code, const std::vector<std::string>& lines) const
    {
        std::string said;
        for (const std::vector<std::string>& arguments :
            std::vector<std::vector<std::string>>{{"scan"}, {"clean", "--default", "--yes"}, {"restore"},
                {"restore", "--all", "--yes"}, {"history"}, {"clean", "--all"}, {"restore", "--id", "x", "--yes"}}) {
            const ProgramResult result = speaking(code, arguments);
            said += result.output + result.messages;
        }
        std::size_t place = 0;
        for (const std::string& line : lines) {
            const std::size_t found = said.find(line, place);
            ASSERT_NE(found, std::string::npos) << line << " is not behind character " << place << " of\n" << said;
            place = found;
        }
    }
};

} // namespace

TEST_F(LanguageProgram, CleansAndRestoresInGerman)
{
    expectACleanAndItsWayBack("de",
        {"Scan von " + path("home") + " (Modus standard): ", "\n  Größe  Alter  Name", "\nSicher: 2 Objekte, 24 KB\n",
            "  Rückgewinnbar  24 KB  2 Objekte\n* Vorausgewählt  24 KB  2 Objekte\n",
            "\nAuf der Festplatte wurde nichts geändert.\n",
            "In den Papierkorb: 2 Objekte, 24 KB\n  24 KB  Benutzer-Caches: 2 Objekte\n", "Sicher: 2 Objekte, 24 KB\n",
            "In den Papierkorb gelegt: 2 Objekte, 24 KB\n", "Der Platz wird frei, wenn der Papierkorb entleert wird.",
            "  Eintrag ", "\n         jetzt unter ~/.local/share/Trash/files/",
            "2 Objekte lassen sich wiederherstellen: karvello-cli restore --id ID oder --all.\n",
            "Aus dem Papierkorb zurück nach: 2 Objekte, 24 KB\n", "Wiederhergestellt: 2 Objekte\n",
            "Datum             Vorgang           Quelle       Gewählt  Erledigt  Fehler  Größe\n",
            "Wiederherstellen  Bereinigung        2         2       0  24 KB\n",
            "Bereinigen        Bereinigung        2         2       0  24 KB\n",
            "karvello-cli: Es gibt kein Terminal für die Rückfrage, daher wurde nichts bewegt; --yes stimmt vorab "
            "zu.\n",
            "karvello-cli: Der Verlauf enthält kein Objekt mit der ID „x“.\n"});
}

TEST_F(LanguageProgram, CleansAndRestoresInKorean)
{
    expectACleanAndItsWayBack("ko",
        {path("home") + "(standard 모드) 스캔: ", "크기  경과  이름", "\n안전: 항목 2개, 24KB\n",
            "  확보 가능    24KB  항목 2개\n* 미리 선택됨  24KB  항목 2개\n", "\n디스크에서 바뀐 것은 없습니다.\n",
            "휴지통으로 이동할 항목: 항목 2개, 24KB\n", "휴지통으로 이동됨: 항목 2개, 24KB\n",
            "휴지통을 비우면 공간이 확보됩니다.", "  기록 ", "현재 위치: ~/.local/share/Trash/files/",
            "항목 2개를 되돌릴 수 있습니다: karvello-cli restore --id ID 또는 --all\n",
            "휴지통에서 복원할 위치: 항목 2개, 24KB\n", "복원됨: 항목 2개\n",
            "날짜              작업  출처  요청  성공  실패  크기\n", "복원  정리     2     2     0  24KB\n",
            "정리  정리     2     2     0  24KB\n",
            "karvello-cli: 확인을 물어볼 터미널이 없어 아무것도 이동하지 않았습니다.",
            "karvello-cli: 기록에 ID가 ‘x’인 항목이 없습니다.\n"});
}

TEST_F(LanguageProgram, CleansAndRestoresInJapanese)
{
    expectACleanAndItsWayBack("ja",
        {path("home") + "（モードstandard）のスキャン：", "サイズ  経過  名前", "\n安全：2項目、24 KB\n",
            "  解放可能  24 KB  2項目\n* 選択済み  24 KB  2項目\n", "\nディスク上では何も変更されていません。\n",
            "ゴミ箱に移動：2項目、24 KB\n", "ゴミ箱に移動済み：2項目、24 KB\n",
            "ゴミ箱を空にすると空き領域が増えます。", "  記録 ", "現在の場所：~/.local/share/Trash/files/",
            "2項目を元に戻せます：karvello-cli restore --id ID、または--all\n", "ゴミ箱からの復元先：2項目、24 KB\n",
            "復元済み：2項目\n", "日時              操作            実行元          対象  成功  失敗  サイズ\n",
            "復元            クリーンアップ     2     2     0   24 KB\n",
            "クリーンアップ  クリーンアップ     2     2     0   24 KB\n",
            "karvello-cli: 確認を求める端末がないため、何も移動しませんでした。",
            "karvello-cli: IDが「x」の項目は履歴にありません。\n"});
}

TEST_F(LanguageProgram, ShowsWhereTheSpaceWentInEachLanguage)
{
    const std::vector<std::string> arguments{"insights", "--min-large", "64K", "--min-duplicate", "64K"};
    EXPECT_THAT(speaking("de", arguments).output,
        AllOf(StartsWith("Speicheranalyse von " + path("home") + ": "), HasSubstr("\nGrößenübersicht: 1 Ordner, "),
            HasSubstr("\nGroße Dateien, ab 64 KB: 1 Datei, 96 KB\n"), HasSubstr("\nDuplikate, ab 64 KB: keine\n"),
            HasSubstr("\nInstaller und Skripte: keine\n"), HasSubstr("\nSystem: RAM ")));
    EXPECT_THAT(speaking("ko", arguments).output,
        AllOf(StartsWith(path("home") + " 인사이트: "), HasSubstr("\n용량 지도: 폴더 1개, "),
            HasSubstr("\n큰 파일(64KB 이상): 파일 1개, 96KB\n"), HasSubstr("\n중복 파일(64KB 이상): 없음\n"),
            HasSubstr("\n시스템: 메모리 ")));
    EXPECT_THAT(speaking("ja", arguments).output,
        AllOf(StartsWith(path("home") + "のインサイト："), HasSubstr("\n容量マップ：フォルダ1個、"),
            HasSubstr("\n大きなファイル（64 KB以上）：ファイル1個、96 KB\n"),
            HasSubstr("\n重複ファイル（64 KB以上）：なし\n"), HasSubstr("\nシステム：メモリ")));
}

TEST_F(LanguageProgram, TellsOfTheMachineInEachLanguage)
{
    EXPECT_THAT(speaking("de", {"status"}).output,
        AllOf(StartsWith("Status: "), HasSubstr("\nProzessoren  "), HasSubstr("\nRAM          "),
            HasSubstr("\nFestplatte   "), HasSubstr("frei, wo Ihr Benutzerordner liegt\n")));
    EXPECT_THAT(speaking("ko", {"status"}).output,
        AllOf(StartsWith("상태: "), HasSubstr("\n프로세서   사용률 "), HasSubstr("\n메모리     "),
            HasSubstr("\n가동 시간  ")));
    EXPECT_THAT(speaking("ja", {"status"}).output,
        AllOf(StartsWith("状態："), HasSubstr("\nプロセッサ  使用率"), HasSubstr("\nメモリ      "),
            HasSubstr("\n稼働時間    ")));
    EXPECT_THAT(speaking("de", {"apps"}).output,
        AllOf(StartsWith("Geöffnete Apps: "), HasSubstr("Keine App wurde gebeten, sich zu beenden.")));
    EXPECT_THAT(speaking("ko", {"apps"}).output,
        AllOf(StartsWith("실행 중인 앱: "), HasSubstr("종료를 요청받은 앱은 없습니다.")));
    EXPECT_THAT(speaking("ja", {"apps"}).output,
        AllOf(StartsWith("実行中のアプリ："), HasSubstr("どのアプリにも終了をリクエストしていません。")));
}

TEST_F(LanguageProgram, ComplainsInTheLanguageThatTheFaultyLineAsksFor)
{
    EXPECT_EQ(speaking("de", {"scna"}).messages,
        "karvello-cli: Den Befehl „scna“ gibt es nicht.\nkarvello-cli: Siehe 'karvello-cli --help'.\n");
    EXPECT_THAT(run({"scan", "--language=ko", "--mode", "fast"}).messages,
        HasSubstr("--mode: ‘fast’ 대신 다음 중 하나를 쓰세요: standard, aggressive, direct.\n"));
    EXPECT_THAT(speaking("ja", {"scan", "--hidden"}).messages, HasSubstr("--hiddenには--rootが必要です。\n"));
    EXPECT_THAT(speaking("de", {"scan", "--root", "/etc"}).messages,
        HasSubstr("karvello-cli: Nicht gescannt: Der Pfad liegt außerhalb des Scanbereichs: /etc\n"));
}

TEST_F(LanguageProgram, FollowsTheEnvironmentUnlessTold)
{
    ProgramSettings settings = with({"scan"});
    settings.environment["LANG"] = "de_CH.UTF-8";
    EXPECT_THAT(runProgram(settings).output, StartsWith("Scan von "));
    settings.environment["LC_ALL"] = "C";
    EXPECT_THAT(runProgram(settings).output, StartsWith("Scan of "));
    settings.arguments = {"scan", "--language", "fr"};
    EXPECT_THAT(runProgram(settings).output, StartsWith("Analyse de "));
    settings.arguments = {"scan", "--language", "en"};
    settings.environment["LC_ALL"] = "de_DE.UTF-8";
    EXPECT_THAT(runProgram(settings).output, StartsWith("Scan of "));
}

TEST_F(LanguageProgram, WhatProgramsReadIsTheSameInEveryLanguage)
{
    const std::regex moment(R"(20\d\d-\d\d-\d\dT[0-9:.]+Z)");
    for (const std::vector<std::string>& arguments :
        std::vector<std::vector<std::string>>{{"scan", "--format", "json", "--root", path("home/Downloads")},
            {"scan", "--format", "csv", "--root", path("home/Downloads"), "--root", "/etc"},
            {"clean", "--all", "--folder", "/etc", "--format", "json", "--yes"}, {"history", "--format", "json"}}) {
        const ProgramResult english = run(arguments);
        for (const std::string& code : kCodes) {
            const ProgramResult result = speaking(code, arguments);
            EXPECT_EQ(std::regex_replace(result.output, moment, ""), std::regex_replace(english.output, moment, ""))
                << code;
            EXPECT_EQ(result.status, english.status) << code;
        }
    }
}

TEST_F(LanguageProgram, NoLineIsWiderThanTheTerminalInAnyLanguage)
{
    ASSERT_EQ(run({"clean", "--default", "--yes"}).status, 0);
    for (const std::string& code : kCodes) {
        for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
                 {"scan", "--mode", "direct", "--folder", "Downloads", "--root", "/etc"}, {"history"}, {"status"},
                 {"apps"}, {"insights", "--min-large", "1K", "--min-duplicate", "1K", "--max-hash-files", "1"}}) {
            ProgramSettings settings = with(arguments);
            settings.arguments.insert(settings.arguments.end(), {"--language", code});
            settings.terminalColumns = 80;
            for (const std::string& line : linesOf(plain(runProgram(settings).output))) {
                EXPECT_LE(KarvelloCLI::columnsOf(line), 80U) << code << " " << arguments.front() << "\n" << line;
            }
        }
    }
}

TEST_F(LanguageProgram, AYesMayBeThatOfTheLanguage)
{
    const auto answer = [&](const std::string& code, std::string_view question, std::string_view keys) {
        ProgramSettings settings = with({"clean", "--default", "--language", code});
        settings.isAttended = true;
        RunningProgram program(settings);
        EXPECT_TRUE(program.hasSaid(question)) << code;
        program.type(keys);
        return program.wait().status;
    };
    EXPECT_EQ(answer("de", "in den Papierkorb legen? [j/N] ", "o\n"), 3) << "that is the French one";
    EXPECT_EQ(answer("en", "to the Trash? [y/N] ", "ja\n"), 3);
    EXPECT_EQ(answer("fr", "dans la Corbeille\u00a0? [o/N] ", "\n"), 3);
    EXPECT_EQ(answer("de", "in den Papierkorb legen? [j/N] ", "J\n"), 0);
    EXPECT_EQ(run({"restore", "--all", "--yes"}).status, 0);
    EXPECT_EQ(answer("ja", "ゴミ箱に移動しますか？ [y/N] ", "はい\n"), 0);
    EXPECT_EQ(run({"restore", "--all", "--yes"}).status, 0);
    EXPECT_EQ(answer("ko", "휴지통으로 이동할까요? [y/N] ", "yes\n"), 0) << "the English one holds everywhere";
}

} // namespace KarvelloCLITests
