// The print dialog, opened from the window.
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QPrinter>

#include "tests/support/fake_solver.h"
#include "tests/ui/window_fixture.h"
#include "ui/dialogs/frmPrint.h"
#include "ui/dialogs/sheet_preview.h"

namespace tricklet::ui {
namespace {

/// Without a solver, unless a test brings one.
class PrintDialogTest : public WindowTest {
 protected:
  /// Has `work` work the dialog, and closes it.
  void WithPrint(const std::function<void(const Driven&)>& work) {
    if (!window) {
      session.settings.autoMakeable = false;
      Open();
    }
    WithDialog("Ctrl+P", [&](const Driven& form) {
      QTest::qWait(0);  // tables have been asked for
      work(form);
      form.Press("cmdClose");
    });
  }
  static void Pick(const Driven& form, const char* name, int index) {
    auto* box = form.Find<QComboBox>(name);
    box->setCurrentIndex(index);
    emit box->activated(index);
  }
  static std::string Seen(const Driven& form) {
    return FromQt(form.Find<SheetPreview>("picSheet")->accessibleDescription());
  }
  std::filesystem::path Out(const char* name) const { return folder.Path() / "out" / name; }
  std::string Head(const char* name) const { return test::ReadFile(Out(name)).substr(0, 4); }
};

TEST_F(PrintDialogTest, EachLayoutOffersWhatItHasAndThePagesFollow) {
  const char* const fields =
      "cmbPerPage cmbSlips chkHand_0 chkPoints chkTable chkPar chkAuction chkNotes chkAnswers "
      "chkRanking";
  const std::tuple<int, const char*, const char*> layouts[] = {
      {0, "cmbPerPage chkPoints chkTable chkPar", "Page 1 of 1"},
      {1, "cmbPerPage chkHand_0 chkPoints chkTable chkPar chkAuction chkNotes chkAnswers",
       "Page 1 of 2"},
      {2, "cmbSlips", "Page 1 of 4"},
  };
  WithPrint([&](const Driven& form) {
    EXPECT_EQ(form.Text("cmbFrom") + "-" + form.Text("cmbTo") + " " + form.Text("txtTitle"),
              "1-24 Club");
    for (const auto& [layout, offered, pages] : layouts) {
      Pick(form, "cmbLayout", layout);
      EXPECT_EQ(form.ShownOf(fields), offered);
      EXPECT_EQ(Seen(form), pages);
      EXPECT_EQ(form.Text("lblPage"), pages);
    }
    form.Key("PgDown");
    EXPECT_EQ(Seen(form), "Page 2 of 4");
    Pick(form, "cmbLayout", 3);
    EXPECT_EQ(form.Text("lblPage"), "") << "there are no results";
    form.Type("cmbFrom", "4");
    form.Type("cmbTo", "9");
    EXPECT_EQ(Seen(form), kNothingToPublish);
  });
}

TEST_F(PrintDialogTest, SheetsAreSavedPrintedOrRefused) {
  const auto said = [](const Driven& form) { return form.Text("lblSaid"); };
  std::filesystem::create_directories(Out(""));
  WithPrint([&](const Driven& form) {
    form.Type("cmbFrom", "7");
    form.Type("cmbTo", "3");
    host.ExpectTell("Please enter a valid range");
    form.Press("cmdPdf");
    EXPECT_EQ(form.Focus(), "cmbFrom");
    Driven::FocusKey("2");
    EXPECT_EQ(form.Text("cmbFrom"), "2");

    form.Type("cmbFrom", "1");
    host.Choose(std::nullopt);
    form.Press("cmdPdf");
    EXPECT_EQ(said(form), "");

    host.Choose(Out("a.pdf"));
    host.ExpectTell("There is no double-dummy solver");
    form.Press("cmdPdf");
    EXPECT_EQ(host.suggested.filename(), "Club.pdf");
    EXPECT_EQ(Head("a.pdf"), "%PDF");
    EXPECT_NE(said(form).find("Saved as "), std::string::npos) << said(form);

    form.Find<QCheckBox>("chkTable")->setChecked(false);
    form.Find<QCheckBox>("chkPar")->setChecked(false);
    host.Choose(Out(""));
    form.Find<QAction>("mnuPng")->trigger();
    EXPECT_EQ(Head("Club-1.png"), "\x89PNG");
    EXPECT_EQ(host.folderStart, Out("a.pdf").parent_path()) << "where the last sheets went";
    test::WriteFile(Out("Club-1.png"), "mine");
    host.Choose(Out(""));
    host.ExpectAskWith("already exists", Answer::No);
    form.Find<QAction>("mnuPng")->trigger();
    EXPECT_EQ(Head("Club-1.png"), "mine");

    qobject_cast<frmPrint*>(form.top)->SetPrinterChooser([&](QPrinter& printer, int, QWidget*) {
      printer.setOutputFileName(PathToQt(Out("b.pdf")));
      return true;
    });
    form.Press("cmdPrint");
    EXPECT_EQ(Head("b.pdf") + " " + said(form), "%PDF Sent to the printer");

    host.Choose(Out("no folder/c.pdf"));
    host.ExpectTellWith("c.pdf");
    form.Press("cmdPdf");
    EXPECT_EQ(said(form), "");
  });
}

TEST_F(PrintDialogTest, ComesBackAsItWasLeft) {
  WithPrint([&](const Driven& form) {
    Pick(form, "cmbLayout", 1);
    Pick(form, "cmbPerPage", 2);
    form.Type("txtTitle", "Squeezes");
    form.Find<QCheckBox>("chkHand_2")->setChecked(false);
    form.Type("cmbTo", "3");
  });
  EXPECT_EQ(store.Read("Print", "Hands"), "NEW");
  WithPrint([&](const Driven& form) {
    EXPECT_EQ(form.Text("cmbLayout") + " " + form.Text("cmbPerPage"), "Lesson 4");
    EXPECT_EQ(form.Text("txtTitle") + " " + form.Text("cmbTo"), "Squeezes 3");
    EXPECT_FALSE(form.Find<QCheckBox>("chkHand_2")->isChecked());
  });
}

TEST_F(PrintDialogTest, TablesAreComputedUnlessThePersonCancels) {
  test::FakeSolver solver;
  session.getSolver = [&solver]() -> Solver& { return solver; };
  bool cancel = true;
  host.onStep = [&] {
    const Driven form{QApplication::activeModalWidget()};
    EXPECT_EQ(form.EnabledOf("cmdPrint cmdPdf cmdPictures cmdClose"), "cmdClose");
    EXPECT_TRUE(form.Shown("fraProgress"));
    if (std::exchange(cancel, false)) form.Press("cmdCancelImport");
  };
  for (int number = 30; number < 50; ++number) PutBoard(number);
  WithPrint([&](const Driven& form) {
    EXPECT_FALSE(form.Shown("fraProgress"));
    EXPECT_LT(solver.dealsSolved, 24U);
    EXPECT_FALSE(Stored(49).makeableValid);
    form.Find<QCheckBox>("chkTable")->setChecked(false);
    form.Find<QCheckBox>("chkPar")->setChecked(false);
    QTest::qWait(0);
    EXPECT_FALSE(Stored(49).makeableValid);
    form.Find<QCheckBox>("chkPar")->setChecked(true);
    QTRY_VERIFY(Stored(49).makeableValid);
  });
}

TEST_F(PrintDialogTest, ALibraryWithoutBoardsHasNothingToPrint) {
  Open();
  host.ExpectTell("There are no hands to print");
  session.settings.library = "Teaching";
  Key("Ctrl+P");
}

}  // namespace
}  // namespace tricklet::ui
