#include "page/painting/Legend.h"
#include "page/painting/PageText.h"
#include "study/page/ComputedStudy.h"
#include "study/page/PageTexts.h"
#include "study/page/ProbabilityMap.h"
#include "study/page/StudyFindings.h"
#include "study/page/StudyPage.h"
#include "study/work/Results.h"
#include "study/work/StudySetup.h"
#include "support/ProgramLanguage.h"
#include "support/PseudoTranslator.h"
#include "translations/UntranslatedTexts.h"

using namespace TVR;
using namespace TVR::Study;
using namespace TVR::Page;

namespace {

const QByteArray manyKeys = R"([study]
base=base.tbat
runs=24
[vary]
kf=log-uniform(0.0005, 0.005)
groundwater_gradient=triangular(0.17, 0.25, 0.33)
groundwater_flow_direction=normal(65, 10) within 40 to 90
aquifer_porosity=triangular(0.12, 0.2, 0.28)
heat_conductivity_surrounding=uniform(1.8, 2.6)
heat_conductivity_aquifer=uniform(1.8, 2.6)
well_diameter=uniform(0.1, 0.2)
well_model\1\1=uniform(-1, 1)
well_model\1\3=uniform(-0.002, -0.001)
well_model\2\4=list(-3, -2)
[correlations]
kf, aquifer_porosity=0.5
[answers]
levels=-1, 1
)";

/// The page of a study as the program draws it.
class LanguageOfTheStudyPage : public ComputedStudy {
protected:
  void compute(const QByteArray& content) {
    write("a.tstudy", content);
    ASSERT_EQ(study("run"), 0) << said_.toStdString();
    Findings findings;
    setup_ = setUpStudy(path("a.tstudy"), findings);
    ASSERT_TRUE(findings.errors.isEmpty()) << findings.errors.join('\n').toStdString();
  }

  /// In the language of the moment.
  void layOut() {
    const StudyFolder folder(StudyFolder::usualPath(path("a.tstudy")));
    const Results results(folder, setup_.plan, setup_.layout);
    const auto maps = probabilityMaps(setup_.layout, results.counts(), results.size());
    layOutStudyPage(canvas_, studyFindings(setup_, folder, results, maps));
  }

  /// What the page says in English, without what is a name in all languages.
  QStringList leftOnPage() const {
    QStringList names{"base.tbat", "Pump", "Return"};
    for (const VariedKey& varied : setup_.file.varied)
      names << toText(varied.distribution) << varied.key.name;
    QStringList left;
    for (QString text : shownTexts(canvas_)) {
      for (const QString& name : names)
        text.remove(name);
      left << leftInEnglish(text);
    }
    left.removeAll({});
    return left;
  }

  QString texts() const { return shownTexts(canvas_).join('\n'); }

  StudySetup setup_;
  Canvas canvas_;
};

std::string lines(const QStringList& texts) {
  return texts.join('\n').toStdString();
}

TEST_F(LanguageOfTheStudyPage, noTextStaysInEnglish) {
  compute(manyKeys);
  const PseudoTranslator pseudo;
  ASSERT_TRUE(pseudo.isLoaded());
  layOut();
  EXPECT_EQ(lines(leftOnPage()), "");
  EXPECT_TRUE(texts().contains("[!! Latin hypercube"));
}

TEST_F(LanguageOfTheStudyPage, noTextStaysInEnglishWithoutAPlume) {
  compute("[study]\nbase=base.tbat\nsampler=grid\ngrid_points=3\n[vary]\nkf=uniform(0.001, 0.002)\n"
          "[answers]\nlevels=-9\n");
  const PseudoTranslator pseudo;
  layOut();
  EXPECT_EQ(lines(leftOnPage()), "");
  EXPECT_TRUE(texts().contains("[!! No run reaches any of the levels"));
  EXPECT_TRUE(texts().contains("[!! Nothing makes a difference"));
}

TEST_F(LanguageOfTheStudyPage, eachAnswerHasATitleInIt) {
  for (const char* quantity : {"plume_width", "plume_area", "drawdown_max", "drawdown",
                               "temperature", "temperature_min", "temperature_max"}) {
    compute("[study]\nbase=base.tbat\nruns=3\nsampler=sobol\n[vary]\n"
            "well_model\\2\\4=uniform(-3, -2)\n[answers]\nlevels=-1\nquantities=" +
            QByteArray(quantity) + "\n");
    const PseudoTranslator pseudo;
    layOut();
    EXPECT_EQ(lines(leftOnPage()), "") << quantity;
  }
}

TEST_F(LanguageOfTheStudyPage, wellsWithoutANameHaveOneInIt) {
  QByteArray base = smallDoublet;
  write("base.tbat",
        base.replace("well_model\\1\\0=Pump\n", "").replace("well_model\\2\\0=Return\n", ""));
  compute("[study]\nbase=base.tbat\nruns=3\n[vary]\nwell_model\\1\\3=uniform(-0.002, -0.001)\n");
  EXPECT_EQ(setup_.layout.wells, (QStringList{"Well 1", "Well 2"}));
  const ProgramLanguage german("de");
  layOut();
  EXPECT_TRUE(texts().contains("Temperatur von Brunnen 1"));
  EXPECT_TRUE(texts().contains("Mittlerer Jahresvolumenstrom von Brunnen 1"));
  EXPECT_FALSE(texts().contains("Well"));
}

TEST_F(LanguageOfTheStudyPage, eachTextFitsItsFrameInAllLanguages) {
  constexpr double legible = 0.8; // of its own size
  compute(manyKeys);
  for (const char* language : {"en", "de", "fr"}) {
    const ProgramLanguage spoken(language);
    layOut();
    for (const TextItem* text : itemsOf<TextItem>(canvas_.items()))
      EXPECT_GE(textItemScale(*text), legible) << language << ": " << text->html.toStdString();
    for (const PlotItem* plot : itemsOf<PlotItem>(canvas_.items())) {
      EXPECT_LE(textSize(plot->x.description, plot->font).width(), plot->area().width())
          << language << ": " << plot->x.description.toStdString();
      EXPECT_LE(textSize(plot->y.description, plot->font).width(), plot->area().height())
          << language << ": " << plot->y.description.toStdString();
    }
    const auto maps = itemsOf<PlotItem>(canvas_.items());
    const auto legends = itemsOf<LegendItem>(canvas_.items());
    ASSERT_EQ(legends.size(), 1u);
    const auto entries = legendEntries(*maps.front(), legends.front()->font);
    EXPECT_EQ(layOutLegend(entries, *legends.front()).scale, 1) << language;
  }
}

} // namespace
