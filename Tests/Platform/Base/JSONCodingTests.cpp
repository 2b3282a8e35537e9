#include "Platform/Base/JSONCoding.h"

#include <gtest/gtest.h>
#include <limits>

namespace Platform {

namespace {

enum class Shelf { high, low };

struct Note {
    std::string text;
    std::int32_t page = 0;

    friend bool operator==(const Note&, const Note&) = default;
};

struct Book {
    std::string title;
    std::uint64_t number = 0;
    double price = 0;
    Date printedAt;
    std::optional<Date> readAt;
    FileURL place;
    UUID id;
    Shelf shelf = Shelf::high;
    bool isLent = false;
    std::string label;
    std::optional<std::string> remark;
    std::vector<Note> notes;

    friend bool operator==(const Book&, const Book&) = default;
};

struct Shelves {
    std::vector<Note> notes;
    std::vector<std::string> labels;

    friend bool operator==(const Shelves&, const Shelves&) = default;
};

struct Loan {
    std::string from;
    std::string to;

    friend bool operator==(const Loan&, const Loan&) = default;
};

constexpr std::string_view kBook = R"({
  "id" : "9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10",
  "isLent" : true,
  "label" : "caf\\xE9",
  "notes" : [
    {
      "page" : 7,
      "text" : "here"
    }
  ],
  "number" : 18446744073709551615,
  "place" : "file:\/\/\/shelf%20one\/caf%E9\/",
  "price" : 12.5,
  "printedAt" : 785000000.25,
  "readAt" : -1,
  "remark" : "good",
  "shelf" : "low",
  "title" : "On \"JSON\""
})";

Book book()
{
    return {
        .title = "On \"JSON\"",
        .number = std::numeric_limits<std::uint64_t>::max(),
        .price = 12.5,
        .printedAt = Date{785'000'000.25},
        .readAt = Date{-1},
        .place = FileURL::folder("/shelf one/caf\xE9"),
        .id = *UUID::fromString("9B6C2D0E-7A41-4E53-8E11-0C6E7C5A2F10"),
        .shelf = Shelf::low,
        .isLent = true,
        .label = "caf\\xE9",
        .remark = "good",
        .notes = {{.text = "here", .page = 7}},
    };
}

constexpr std::string_view kSmallestBook = R"({"title":"","number":0,"price":1,"printedAt":0,"place":"file:///",
    "id":"00000000-0000-0000-0000-000000000000","shelf":"high","label":"","notes":[]})";

/// The error of reading the book with one piece of its text replaced.
std::string errorWith(std::string_view piece, std::string_view replacement)
{
    std::string text(kBook);
    const auto position = text.find(piece);
    EXPECT_NE(position, std::string::npos);
    text.replace(position, piece.size(), replacement);
    const auto read = decodeJSON<Book>(std::string_view(text));
    EXPECT_FALSE(read);
    return read ? "" : read.error().localizedDescription();
}

} // namespace

template <>
struct RawValues<Shelf> {
    static constexpr std::array<std::string_view, 2> names{"high", "low"};
};

template <>
struct JSONFields<Note> {
    static void code(auto& coder, auto& note)
    {
        coder.field("text", note.text);
        coder.field("page", note.page);
    }
    static void normalize(Note& note) { note.page = std::max(note.page, 0); }
};

template <>
struct JSONFields<Loan> {
    static void code(auto& coder, auto& loan)
    {
        coder.path("from", loan.from);
        coder.path("to", loan.to, loan.from);
    }
};

template <>
struct JSONFields<Shelves> {
    static void code(auto& coder, auto& shelves)
    {
        coder.readableElements("notes", shelves.notes);
        coder.text("labels", shelves.labels);
    }
};

template <>
struct JSONFields<Book> {
    static void code(auto& coder, auto& book)
    {
        coder.field("title", book.title);
        coder.field("number", book.number);
        coder.field("price", book.price);
        coder.field("printedAt", book.printedAt);
        coder.field("readAt", book.readAt);
        coder.field("place", book.place);
        coder.field("id", book.id);
        coder.field("shelf", book.shelf);
        coder.defaulted("isLent", book.isLent, false);
        coder.text("label", book.label);
        coder.text("remark", book.remark);
        coder.field("notes", book.notes);
    }
};

TEST(JSONCoding, WritesEachKindOfField)
{
    EXPECT_EQ(encodeJSON(book()), kBook);
}

TEST(JSONCoding, ReadsEachKindOfField)
{
    const auto read = decodeJSON<Book>(kBook);
    ASSERT_TRUE(read) << read.error().localizedDescription();
    EXPECT_EQ(*read, book());
}

TEST(JSONCoding, LeavesOutAbsentFields)
{
    auto absent = book();
    absent.readAt.reset();
    absent.remark.reset();
    const auto text = encodeJSON(absent);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->find("readAt"), std::string::npos);
    EXPECT_EQ(text->find("remark"), std::string::npos);
    EXPECT_EQ(decodeJSON<Book>(std::string_view(*text)), absent);
}

TEST(JSONCoding, ReadsMissingKeysAsAbsentOrAsTheirDefault)
{
    const auto read = decodeJSON<Book>(kSmallestBook);
    ASSERT_TRUE(read) << read.error().localizedDescription();
    EXPECT_FALSE(read->readAt);
    EXPECT_FALSE(read->remark);
    EXPECT_FALSE(read->isLent);
    EXPECT_EQ(read->place, FileURL());
}

TEST(JSONCoding, ReadsNullAsAbsent)
{
    std::string text(kSmallestBook);
    text.insert(1, R"("readAt":null,"remark":null,"isLent":null,)");
    const auto read = decodeJSON<Book>(std::string_view(text));
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->readAt);
    EXPECT_FALSE(read->isLent);
}

TEST(JSONCoding, PassesOverKeysThatItDoesNotKnow)
{
    std::string text(kSmallestBook);
    text.insert(1, R"("later":{"deep":[1]},)");
    EXPECT_TRUE(decodeJSON<Book>(std::string_view(text)));
}

TEST(JSONCoding, EscapesBytesOfATextThatAreNotUTF8)
{
    auto odd = book();
    odd.label = "caf\xE9";
    odd.remark = "\xFF";
    const auto text = encodeJSON(odd);
    ASSERT_TRUE(text);
    const auto read = decodeJSON<Book>(std::string_view(*text));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->label, "caf\\xE9");
    EXPECT_EQ(read->remark, "\\xFF");
}

TEST(JSONCoding, RefusesToWriteAStringThatIsNotUTF8)
{
    auto odd = book();
    odd.title = "caf\xE9";
    EXPECT_FALSE(encodeJSON(odd));
}

TEST(JSONCoding, SaysWhatIsWrongAndWhere)
{
    EXPECT_EQ(errorWith(R"("title" :)", R"("titel" :)"), "the key \"title\" is missing");
    EXPECT_EQ(errorWith("785000000.25", "\"now\""),
        "printedAt: expected a date, in seconds since 2001, found the string \"now\"");
    EXPECT_EQ(errorWith("true", "1"), "isLent: expected true or false, found the number 1");
    EXPECT_EQ(errorWith("12.5", "null"), "price: expected a number, found null");
    EXPECT_EQ(errorWith("\"low\"", "\"Low\""), "shelf: expected one of the known words, found the string \"Low\"");
    EXPECT_EQ(
        errorWith("file:", "http:"), "place: expected a file URL, found the string \"http:///shelf%20one/caf%E9/\"");
    EXPECT_EQ(
        errorWith("9B6C", "9B6"), "id: expected a UUID, found the string \"9B62D0E-7A41-4E53-8E11-0C6E7C5A2F10\"");
    EXPECT_EQ(errorWith("7,", "7.5,"), "notes[0].page: expected a whole number, found the number 7.5");
    EXPECT_EQ(errorWith("\"here\"", "[]"), "notes[0].text: expected a string, found an array");
    EXPECT_EQ(errorWith("-1,", "{},"), "readAt: expected a date, in seconds since 2001, found an object");
}

TEST(JSONCoding, KeepsIntegersWithinTheirType)
{
    EXPECT_EQ(
        errorWith("18446744073709551615", "-1"), "number: expected a whole number from 0 up, found the number -1");
    EXPECT_FALSE(decodeJSON<Note>(R"({"text":"","page":2147483648})"));
    EXPECT_EQ(decodeJSON<Note>(R"({"text":"","page":2147483647})")->page, 2147483647);
    EXPECT_EQ(decodeJSON<std::int64_t>("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_FALSE(decodeJSON<std::int64_t>("9223372036854775808"));
    EXPECT_EQ(decodeJSON<std::uint64_t>("9223372036854775808"), std::uint64_t{1} << 63U);
    EXPECT_FALSE(decodeJSON<std::uint64_t>("18446744073709551616"));
    EXPECT_EQ(decodeJSON<std::int64_t>("5.0"), 5);
    EXPECT_FALSE(decodeJSON<std::int64_t>("1e17"));
    EXPECT_FALSE(decodeJSON<bool>("0"));
}

TEST(JSONCoding, NormalisesARecordThatHasLimits)
{
    EXPECT_EQ(decodeJSON<Note>(R"({"text":"","page":-3})")->page, 0);
}

TEST(JSONCoding, RefusesARecordThatIsNoObject)
{
    const auto read = decodeJSON<std::vector<Note>>(R"([{"text":"","page":1},[]])");
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().localizedDescription(), "[1]: expected an object, found an array");
}

TEST(JSONCoding, ReadsTheReadableElementsOfAnArray)
{
    JSONValue::Array elements;
    for (const std::string_view text :
        {R"({"text":"a","page":1})", "null", "17", R"({"text":"b"})", "[]", R"({"text":"c","page":3})"}) {
        elements.push_back(*JSONReader::parse(text));
    }
    const auto notes = decodeReadableElements<Note>(elements);
    EXPECT_EQ(notes, (std::vector<Note>{{"a", 1}, {"c", 3}}));
}

TEST(JSONCoding, ReadsARecordWithADamagedListOfElements)
{
    const Shelves whole{{{"a", 1}, {"b", 2}}, {"caf\xE9", "c"}};
    const auto text = encodeJSON(whole);
    ASSERT_TRUE(text);
    EXPECT_EQ(decodeJSON<Shelves>(*text), (Shelves{whole.notes, {"caf\\xE9", "c"}}));
    for (const auto* const none : {"17", "{}", "null", "\"notes\"", "[17, null]"}) {
        EXPECT_EQ(decodeJSON<Shelves>("{\"labels\":[],\"notes\":" + std::string(none) + "}"), Shelves()) << none;
    }
    EXPECT_EQ(decodeJSON<Shelves>(R"({"labels":[]})"), Shelves());
    EXPECT_EQ(decodeJSON<Shelves>(R"({"labels":[],"notes":[17,{"text":"a","page":1}]})"), (Shelves{{{"a", 1}}, {}}));
    EXPECT_FALSE(decodeJSON<Shelves>(R"({"notes":[]})"));
    EXPECT_FALSE(decodeJSON<Shelves>(R"({"labels":[17]})"));
}

TEST(JSONCoding, HandsOnTheDepthLimit)
{
    EXPECT_TRUE((decodeJSON<std::vector<std::vector<int>>>("[[1]]", 2)));
    EXPECT_FALSE((decodeJSON<std::vector<std::vector<int>>>("[[1]]", 1)));
}

TEST(JSONCoding, ShortensALongTextInAnError)
{
    const auto read = decodeJSON<bool>("\"" + std::string(59, 'x') + "éé\"");
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().message, "expected true or false, found the string \"" + std::string(59, 'x') + "…\"");
}

TEST(JSONCoding, ReadsEveryPathBackByteForByte)
{
    const Loan loan{.from = "/caf\xE9\n %41", .to = "/café/%FF"};
    const auto text = encodeJSON(loan);
    ASSERT_TRUE(text);
    EXPECT_NE(text->find(R"("from" : "file:\/\/\/caf%E9%0A%20%2541")"), std::string::npos) << *text;
    EXPECT_NE(text->find(R"("to" : "\/café\/%FF")"), std::string::npos) << *text;
    EXPECT_EQ(decodeJSON<Loan>(std::string_view(*text)), loan);
}

TEST(JSONCoding, GivesAPathThatIsAbsentItsDefault)
{
    EXPECT_EQ(decodeJSON<Loan>(std::string_view(R"({"from":"/a"})")), (Loan{.from = "/a", .to = "/a"}));
    EXPECT_EQ(decodeJSON<Loan>(std::string_view(R"({"from":"file:///%FF"})")), (Loan{.from = "/\xFF", .to = "/\xFF"}));
    EXPECT_EQ(decodeJSON<Loan>(std::string_view(R"({"from":"/a","to":null})")), (Loan{.from = "/a", .to = "/a"}));
    EXPECT_FALSE(decodeJSON<Loan>(std::string_view(R"({"to":"/a"})")));
    EXPECT_FALSE(decodeJSON<Loan>(std::string_view(R"({"from":null})")));
    EXPECT_FALSE(decodeJSON<Loan>(std::string_view(R"({"from":"/a","to":1})")));
    EXPECT_EQ(
        decodeJSON<Loan>(std::string_view(R"({"from":"file://%"})")), (Loan{.from = "file://%", .to = "file://%"}));
}

} // namespace Platform
