// JSON Schemas of what decode prints, and the vocabulary of replies as a tree.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <string>

#include "foundation/document.h"
#include "foundation/reply.h"
#include "messages/message.h"
#include "sample.h"
#include "schema.h"
#include "support/files.h"
#include "tool/tool.h"

namespace schema_test {

namespace {

using namespace kvj;
using namespace kvj::tests;
using testing::HasSubstr;
using Json = nlohmann::json;

Json schema(const std::string& root) { return Json::parse(tool::schemaOf(root).dump()); }
Json propertyOf(const std::string& root, const std::string& pointer) {
    return schema(root).at(Json::json_pointer(pointer));
}

// ---- What a validator says ----

/// Schemas and documents in a folder, and what the validator says of them.
class Validated : public testing::Test {
protected:
    void decodeTo(const std::string& name, const std::string& reply, const std::string& options = "") const {
        write(folder_ / name, runTool("decode" + options, reply).out);
    }
    void give(const std::string& name, const std::string& root, const tool::SchemaForm& form) const {
        write(folder_ / (name + ".schema"), tool::schemaOf(root, form).dump());
    }
    [[nodiscard]] Outcome validate() const {
        return runShell(std::string(KVJXML_VALIDATE " ") + (folder_ / "").string());
    }

    TemporaryFolder folder_;
};

std::string replyOf(const std::string& root) { return contentOf(std::string(KVJXML_REPLIES) + "/" + root + ".xml"); }

TEST_F(Validated, WhatDecodePrintsOfEveryMessageIsAllowed) {
    write(folder_ / "all.schema", schema("").dump());
    std::set<std::string_view> roots;
    for (const Message& message : messages()) {
        if (!roots.insert(message.root).second) continue;
        const std::string root(message.root);
        write(folder_ / (root + ".schema"), schema(root).dump());
        const std::string reply = replyOf(root);
        std::ostringstream sample;
        tool::writeSample(sample, root);
        decodeTo(root + ".reply", reply);
        decodeTo(root + ".sample", sample.str());
        decodeTo(root + ".empty", "<" + root + "/>");
        decodeTo(root + ".cut", reply.substr(0, reply.size() - 5));
        write(folder_ / ("all." + root), contentOf(folder_ / (root + ".reply")));
    }
    decodeTo("get_general_status.word", "<get_general_status><printer_state>odd</printer_state></get_general_status>");
    const Outcome outcome = validate();
    if (outcome.code == 77) GTEST_SKIP() << "python3-jsonschema is not installed";
    EXPECT_EQ(outcome.code, 0) << outcome.out << outcome.error;
}

TEST_F(Validated, EveryFormOfWhatDecodePrintsIsAllowed) {
    const struct {
        const char* name;
        const char* options;
        tool::SchemaForm form;
    } forms[] = {
        {"words", " --words", {.words = true}},
        {"lines", " --format jsonl", {.lines = true}},
        {"both", " --format jsonl --words", {.words = true, .lines = true}},
    };
    std::set<std::string_view> roots;
    for (const auto& [name, options, form] : forms) give(std::string(name) + "-all", "", form);
    for (const Message& message : messages()) {
        if (!roots.insert(message.root).second) continue;
        const std::string root(message.root);
        const std::string reply = replyOf(root);
        std::ostringstream sample;
        tool::writeSample(sample, root);
        for (const auto& [name, options, form] : forms) {
            const std::string schema = name + ("-" + root);
            give(schema, root, form);
            decodeTo(schema + ".reply", reply, options);
            decodeTo(schema + ".sample", sample.str(), options);
            decodeTo(schema + ".empty", "<" + root + "/>", options);
            decodeTo(schema + ".cut", reply.substr(0, reply.size() - 5), options);
            write(folder_ / (std::string(name) + "-all." + root), contentOf(folder_ / (schema + ".reply")));
        }
    }
    const std::string odd =
        "<get_general_status><printer_state>odd</printer_state><error>318abc</error></get_general_status>";
    for (const auto& [name, options, form] : forms) {
        decodeTo(std::string(name) + "-get_general_status.odd", odd, options);
        if (form.lines) decodeTo(std::string(name) + "-all.error", "<get_weather/>", options);
    }
    const Outcome outcome = validate();
    if (outcome.code == 77) GTEST_SKIP() << "python3-jsonschema is not installed";
    EXPECT_EQ(outcome.code, 0) << outcome.out << outcome.error;
}

TEST_F(Validated, WhatDecodeNeverPrintsIsRefused) {
    write(folder_ / "jobs.schema", schema("get_job_list").dump());
    const Json right = Json::parse(runTool("decode", replyOf("get_job_list")).out);
    const struct {
        const char* name;
        const char* patch;
        const char* refused;
    } cases[] = {
        {"code", R"([{"op": "replace", "path": "/jobs/0/printState", "value": 77}])", "jobs/0/printState"},
        {"word", R"([{"op": "replace", "path": "/jobs/0/printState", "value": "held"}])", "jobs/0/printState"},
        {"number", R"([{"op": "replace", "path": "/jobs/0/actionId", "value": 65536}])", "jobs/0/actionId"},
        {"missing", R"([{"op": "remove", "path": "/jobs/0/uuid"}])", "jobs/0"},
        {"unknown", R"([{"op": "add", "path": "/jobs/0/other", "value": 1}])", "jobs/0"},
        {"list", R"([{"op": "replace", "path": "/jobs", "value": {}}])", "jobs"},
    };
    for (const auto& [name, patch, refused] : cases) {
        write(folder_ / (std::string("jobs.") + name), right.patch(Json::parse(patch)).dump());
    }
    const Outcome outcome = validate();
    if (outcome.code == 77) GTEST_SKIP() << "python3-jsonschema is not installed";
    EXPECT_EQ(outcome.code, 1) << outcome.error;
    for (const auto& [name, patch, refused] : cases) {
        EXPECT_THAT(outcome.out, HasSubstr(std::string("jobs.") + name + ": " + refused + ": "));
    }
}

// ---- What is in a schema ----

TEST(Schema, HasTheWordsOfCodes) {
    const Json codes = propertyOf("get_general_status", "/properties/printerState/oneOf");
    EXPECT_THAT(codes, testing::Contains(Json{{"const", 5}, {"description", "printing"}}));
    EXPECT_THAT(codes, testing::Contains(Json{{"const", 38}, {"description", "any other word"}}));
    EXPECT_THAT(codes,
                testing::Contains(Json{{"const", 3}, {"description", "xfer_rollers_heating or printing_heating"}}));
}

TEST(Schema, HasTheRangesOfNumbers) {
    const auto expectRange = [](const std::string& root, const std::string& field, std::int64_t least,
                                std::int64_t most) {
        const Json property = propertyOf(root, "/properties/" + field);
        EXPECT_EQ(property["minimum"], least) << field;
        EXPECT_EQ(property["maximum"], most) << field;
    };
    expectRange("get_general_status", "alarms", 0, 4294967295);
    expectRange("get_general_status", "error", -2147483648, 2147483647);
    expectRange("get_general_status", "paramChangeCounter", 0, 65535);
    expectRange("get_job_status", "errorCode", 0, 65535);
    expectRange("printer_id", "media_auth_cfg", 0, 255);
}

TEST(Schema, SaysOfAFieldWhatTheHeadersSay) {
    EXPECT_EQ(propertyOf("get_general_status", "/properties/error/description"),
              "\"error\": the printer's error number, decimal.");
}

/// The code of a laminate is its type, and that of a ribbon a word.
TEST(Schema, OfAFieldGoesByTheElementsThatAreReadThere) {
    EXPECT_TRUE(propertyOf("get_media_status", "/properties/ribbon/properties/code").contains("oneOf"));
    EXPECT_FALSE(propertyOf("get_media_status", "/properties/topLaminate/properties/code").contains("oneOf"));
}

TEST(Schema, HasTheMarkOfADamagedReply) {
    EXPECT_EQ(propertyOf("get_count", "/properties/damaged/const"), true);
    EXPECT_EQ(propertyOf("get_log_cleaning_history", "/anyOf/1/properties/damaged/const"), true);
}

TEST(Schema, HasEachReaderOfADocumentThatSeveralRead) {
    EXPECT_EQ(schema("get_count")["required"], Json({"ParseCardCount", "ParseCleanLogCount"}));
}

TEST(Schema, OfWordsHasTheCodeWithItsWord) {
    const Json with = Json::parse(tool::schemaOf("get_general_status", {.words = true}).dump());
    const Json& state = with["properties"]["printerState"];
    EXPECT_EQ(state["required"], Json({"code"}));
    EXPECT_EQ(state["properties"]["code"]["oneOf"], propertyOf("get_general_status", "/properties/printerState/oneOf"));
    EXPECT_EQ(state["properties"]["word"]["type"], "string");
    EXPECT_EQ(with["properties"]["error"]["anyOf"][1]["required"], Json({"value", "sent"}));
}

TEST(Schema, OfLinesHasTheRecordOrAnErrorInItsPlace) {
    const Json lines = Json::parse(tool::schemaOf("get_general_status", {.lines = true}).dump());
    EXPECT_EQ(lines["oneOf"][0]["properties"]["record"]["properties"]["printerState"],
              propertyOf("get_general_status", "/properties/printerState"));
    EXPECT_EQ(lines["oneOf"][0]["properties"]["message"]["const"], "get_general_status");
    EXPECT_EQ(lines["oneOf"][1]["required"], Json({"schema", "source", "error"}));
}

TEST(Schema, AloneIsThatOfAllMessages) {
    const Json all = schema("");
    for (const Message& message : messages()) EXPECT_TRUE(all["$defs"].contains(message.root)) << message.root;
    EXPECT_EQ(all["anyOf"].size(), all["$defs"].size());
}

TEST(Schema, IsPrinted) {
    EXPECT_EQ(Json::parse(runTool("schema get_job_status").out), schema("get_job_status"));
    EXPECT_EQ(Json::parse(runTool("schema").out), schema(""));
    EXPECT_EQ(Json::parse(runTool("schema --words --format jsonl").out),
              Json::parse(tool::schemaOf("", {.words = true, .lines = true}).dump()));
    EXPECT_EQ(Json::parse(runTool("schema --format json").out), schema(""));
    EXPECT_EQ(runTool("schema --xml --words").code, 2);
    const Outcome wrong = runTool("schema get_jb_status");
    EXPECT_EQ(wrong.code, 2);
    EXPECT_THAT(wrong.error, HasSubstr("did you mean \"get_job_status\"?"));
    EXPECT_EQ(runTool("schema >/dev/full").code, 1);
}

// ---- The vocabulary as a tree ----

/// The child of that name.
Element named(Element around, std::string_view name) {
    for (const Element child : around.children()) {
        const char* const it = child.attribute("name");
        if (it != nullptr && name == it) return child;
    }
    return {};
}

// Groups nest as deep as the tables are written, so the recursion ends. NOLINTNEXTLINE(misc-no-recursion)
void expectRows(Element around, std::span<const DescribedRow> rows) {
    for (const DescribedRow& row : rows) {
        const Element element = named(around, row.name);
        ASSERT_TRUE(element) << row.name;
        std::size_t words = 0;
        for (const Element child : element.children()) words += child.name() == "word" ? 1U : 0U;
        EXPECT_EQ(words, row.description.words.words.rows.size()) << row.name;
        expectRows(element, row.description.group);
    }
}

TEST(VocabularyTree, HasEveryRowOfEveryMessage) {
    const Outcome outcome = runTool("schema --xml");
    EXPECT_EQ(outcome.code, 0);
    const Reply tree(outcome.out.c_str());
    ASSERT_FALSE(tree.fault());
    for (const Message& message : messages()) {
        const Element found = named(tree.root("vocabulary"), message.name);
        ASSERT_TRUE(found) << message.name;
        EXPECT_STREQ(found.attribute("root"), message.root.data());
        expectRows(found, message.table);
    }
}

TEST(VocabularyTree, HasAttributesAndCodes) {
    const std::string configuration = runTool("schema --xml configuration").out;
    EXPECT_THAT(configuration, HasSubstr("<message root=\"configuration\" or=\"set_configuration\""));
    EXPECT_THAT(configuration, HasSubstr("<attribute name=\"min\"/>"));
    EXPECT_THAT(runTool("schema --xml get_general_status").out, HasSubstr("<word code=\"5\">printing</word>"));
    EXPECT_THAT(runTool("schema --xml get_sensor_status").out, HasSubstr("<attribute name=\"adc_value\"/>"));
}

}  // namespace

}  // namespace schema_test
