#include "jobs/lista.h"

#include <gtest/gtest.h>

namespace duktores {
namespace {

TEST(LeeLista, TextsAndNumbersBecomeWhatIsTyped) {
  const auto trabajos = LeeLista(R"([{"name": "a", "piece": "TransCR", "H": 1e3, "RS": 0.1, "LI": "4,5", "AI": 12345678,
                                      "AX": 1.5e-7, "picks": [[1, 2.5], [-3, 0]]}])");
  ASSERT_EQ(trabajos.size(), 1U);
  EXPECT_FALSE(trabajos[0].rechazo);
  const std::vector<std::pair<std::string, std::string>> valores{
      {"H", "1000"}, {"RS", "0.1"}, {"LI", "4,5"}, {"AI", "12345678"}, {"AX", "0.00000015"}};
  EXPECT_EQ(trabajos[0].valores, valores);
  EXPECT_EQ(*trabajos[0].puntos, (std::vector<Punto2>{{1, 2.5}, {-3, 0}}));
}

TEST(LeeLista, RefusesByName) {
  const struct {
    const char* trabajo;
    const char* clave;
  } casos[]{
      {R"({"piece": "TransCR"})", "name"},
      {R"({"name": "", "piece": "TransCR"})", "name"},
      {R"({"name": "a/b", "piece": "TransCR"})", "name"},
      {R"({"name": "a\\b", "piece": "TransCR"})", "name"},
      {R"({"name": "a\u0000", "piece": "TransCR"})", "name"},
      {R"({"name": "a\u009b", "piece": "TransCR"})", "name"},
      {R"({"name": "a\u2028", "piece": "TransCR"})", "name"},
      {"{\"name\": \"a\U000E0001\", \"piece\": \"TransCR\"}", "name"},
      {R"({"name": "a", "piece": "TransCR", "picks": [[1, 1e400]]})", "picks"},
      {R"({"name": "a", "piece": "TransCR", "H": {"name": 1}})", "H"},
      {R"({"name": "a", "piece": "TransCR", "H": "000000000000000000000000000000001"})", "H"},
      {R"({"name": 7, "piece": "TransCR"})", "name"},
      {R"({"name": "a"})", "piece"},
      {R"({"name": "a", "piece": "TransCR", "H": [1]})", "H"},
      {R"({"name": "a", "piece": "TransCR", "H": null})", "H"},
      {R"({"name": "a", "piece": "TransCR", "H": 1, "H": 2})", "H"},
      {R"({"name": "a", "piece": "TransCR", "picks": [[1]]})", "picks"},
      {R"({"name": "a", "piece": "TransCR", "picks": 3})", "picks"},
      {R"([])", "job"},
      {R"("a")", "job"},
  };
  for (const auto& caso : casos) {
    // A neighbour on each side stays sound.
    const std::string bueno = R"({"name": "b", "piece": "TransCR", "H": 1})";
    const auto trabajos = LeeLista("[" + bueno + "," + caso.trabajo + R"(,{"name": "c", "piece": "x"}])");
    ASSERT_EQ(trabajos.size(), 3U) << caso.trabajo;
    EXPECT_FALSE(trabajos[0].rechazo || trabajos[2].rechazo) << caso.trabajo;
    ASSERT_TRUE(trabajos[1].rechazo) << caso.trabajo;
    EXPECT_EQ(trabajos[1].rechazo->clave, caso.clave) << caso.trabajo;
  }
  for (const char* otro : {"caf\u00e9", "CAFE\u0301"}) {
    const auto dobles = LeeLista("[{\"name\": \"Caf\u00e9\", \"piece\": \"x\"}, {\"name\": \"" + std::string(otro) +
                                 "\", \"piece\": \"x\"}]");
    for (const Trabajo& doble : dobles) EXPECT_EQ(doble.rechazo->clave, "name");
  }
}

TEST(LeeLista, WhatIsNoListSaysWhere) {
  const std::pair<std::string, std::string> casos[] = {
      {"[{},\n{}" + std::string(1, '\0') + "]", "job 2: a NUL byte at line 2"},
      {"[{},\n{]", "job 2: parse error at line 2, column 2: "},
      {"{}", "job 0: it must be one array"},
      {std::string(100000, '['), "job 1: parse error at line 1, "}};
  for (const auto& [texto, dicho] : casos) {
    try {
      LeeLista(texto);
      ADD_FAILURE() << dicho;
    } catch (const ErrorLista& error) {
      EXPECT_TRUE(std::string(error.what()).starts_with(dicho)) << error.what();
    }
  }
  EXPECT_EQ(LeeLista("[{}]")[0].nombre, "#1");
  EXPECT_TRUE(LeeLista(R"([{"name": "a", "piece": "x", "H": 1e400}])")[0].valores ==
              (Trabajo{}.valores = {{"H", "1e400"}}));
}

}  // namespace
}  // namespace duktores
