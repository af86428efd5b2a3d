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

/// Schemas and documents, and what the validator says of them.
class Validated : public testing::Test {
protected:
    void SetUp() override {
        write(folder_ / "any", "{}");
        if (runShell(validate("any", "any")).code == 77) GTEST_SKIP() << "python3-jsonschema is not installed";
    }
    [[nodiscard]] std::string validate(const std::string& schema, const std::string& documents) const {
        return "cd " + (folder_ / "").string() + " && " KVJXML_VALIDATE " " + schema + " " + documents;
    }
    void decodeTo(const std::string& name, const std::string& reply) const {
        write(folder_ / name, runTool("decode", reply).out);
    }

    TemporaryFolder folder_;
};

TEST_F(Validated, WhatDecodePrintsOfEveryMessageIsAllowed) {
    write(folder_ / "all", schema("").dump());
    std::set<std::string_view> roots;
    std::string documents;
    for (const Message& message : messages()) {
        if (!roots.insert(message.root).second) continue;
        const std::string root(message.root);
        write(folder_ / (root + ".schema"), schema(root).dump());
        const std::string reply = contentOf(std::string(KVJXML_REPLIES) + "/" + root + ".xml");
        std::ostringstream sample;
        tool::writeSample(sample, root);
        decodeTo(root + ".1", reply);
        decodeTo(root + ".2", sample.str());
        decodeTo(root + ".3", "<" + root + "/>");
        decodeTo(root + ".4", reply.substr(0, reply.size() - 5));
        const std::string four = root + ".1 " + root + ".2 " + root + ".3 " + root + ".4 ";
        const Outcome outcome = runShell(validate(root + ".schema", four));
        EXPECT_EQ(outcome.code, 0) << outcome.out << outcome.error;
        documents += four;
    }
    const Outcome outcome = runShell(validate("all", documents));
    EXPECT_EQ(outcome.code, 0) << outcome.out << outcome.error;
}

TEST_F(Validated, AnUnknownWordHasACodeThatIsAllowed) {
    write(folder_ / "schema", schema("get_general_status").dump());
    decodeTo("unknown", "<get_general_status><printer_state>dancing</printer_state></get_general_status>");
    EXPECT_EQ(runShell(validate("schema", "unknown")).code, 0);
}

TEST_F(Validated, WhatDecodeNeverPrintsIsRefused) {
    write(folder_ / "schema", schema("get_job_list").dump());
    const std::string reply = contentOf(std::string(KVJXML_REPLIES) + "/get_job_list.xml");
    const Json right = Json::parse(runTool("decode", reply).out);
    const auto refused = [&](const char* patch) {
        write(folder_ / "wrong", right.patch(Json::parse(patch)).dump());
        const Outcome outcome = runShell(validate("schema", "wrong"));
        EXPECT_EQ(outcome.code, 1) << patch << outcome.error;
    };
    refused(R"([{"op": "replace", "path": "/jobs/0/printState", "value": 77}])");
    refused(R"([{"op": "replace", "path": "/jobs/0/printState", "value": "printing"}])");
    refused(R"([{"op": "replace", "path": "/jobs/0/actionId", "value": 65536}])");
    refused(R"([{"op": "remove", "path": "/jobs/0/uuid"}])");
    refused(R"([{"op": "add", "path": "/jobs/0/other", "value": 1}])");
    refused(R"([{"op": "replace", "path": "/jobs", "value": {}}])");
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

TEST(Schema, HasEachReaderOfADocumentThatSeveralRead) {
    EXPECT_EQ(schema("get_count")["required"], Json({"ParseCardCount", "ParseCleanLogCount"}));
}

TEST(Schema, AloneIsThatOfAllMessages) {
    const Json all = schema("");
    for (const Message& message : messages()) EXPECT_TRUE(all["$defs"].contains(message.root)) << message.root;
    EXPECT_EQ(all["anyOf"].size(), all["$defs"].size());
}

TEST(Schema, IsPrinted) {
    EXPECT_EQ(Json::parse(runTool("schema get_job_status").out), schema("get_job_status"));
    EXPECT_EQ(Json::parse(runTool("schema").out), schema(""));
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
