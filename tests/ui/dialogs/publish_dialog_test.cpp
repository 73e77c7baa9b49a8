// The dialog of the web page, and its command.
#include "tests/ui/window_fixture.h"
#include "ui/background/later.h"
#include "ui/dialogs/frmPublish.h"

namespace tricklet::ui {
namespace {

using PublishDialogTest = test::LibraryTest;

TEST_F(PublishDialogTest, StaysUntilRangeAndFolderAreThere) {
  PutBoard(2);
  PutBoard(8);
  FindFiles(session);
  frmPublish dialog(session, ProposedPublish(session), nullptr);
  const Driven form{&dialog};
  dialog.show();
  EXPECT_EQ(form.Text("txtBoards") + " " + form.Text("txtTitle"), "2-8 Club");
  form.Type("txtBoards", "8-2");
  host.ExpectTell("Please enter a valid range");
  form.Press("cmdGo");
  form.Type("txtBoards", "3-8");
  host.Choose(std::nullopt);
  form.Press("cmdGo");
  form.Type("txtFolder", "site");
  host.ExpectTell("Please name the folder with its whole path");
  form.Press("cmdGo");
  EXPECT_TRUE(dialog.isVisible());
  host.Choose(folder.Path());
  form.Press("cmdFolder");
  form.Press("optNames_1");
  form.Press("chkReport");
  form.Type("txtTitle", " Tuesday ");
  form.Press("cmdGo");
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.Choices().boards, (BoardRange{3, 8}));
  EXPECT_EQ(dialog.Choices().title, "Tuesday");
  EXPECT_EQ(dialog.Choices().names, NamesShown::Initials);
  EXPECT_TRUE(dialog.Choices().report);
  EXPECT_EQ(dialog.Choices().folder, folder.Path());
}

}  // namespace
}  // namespace tricklet::ui
