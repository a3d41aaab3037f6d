#include "headless/headless_platform.h"
#include "runtime/controls.h"
#include "runtime/form.h"

#include <gtest/gtest.h>

namespace tessarine
{
namespace
{

class RecordedForm : public Form
{
public:
    explicit RecordedForm(Forms& forms) : Form(forms, "form", {3000, 1500}) {}

    std::string Take() { return std::exchange(record, {}); }
    std::string record;

protected:
    void OnLoad() override { record += "load "; }
    void OnActivate() override { record += "activate "; }
    void OnResize() override { record += "resize "; }
    void OnUnload() override { record += "unload "; }
};

struct FormLife : testing::Test {
    HeadlessPlatform platform;
    Forms forms{platform};
    RecordedForm form{forms};
    RecordedForm other{forms};
};

TEST_F(FormLife, AFormIsLoadedOnceAndAfreshAfterAnUnload)
{
    form.Show();
    EXPECT_EQ(form.Take(), "load activate ");
    form.Hide();
    form.Hide();
    EXPECT_TRUE(form.IsLoaded());
    form.Show();
    EXPECT_EQ(form.Take(), "activate ");
    form.Unload();
    form.Unload();
    EXPECT_FALSE(form.IsShown());
    EXPECT_EQ(form.Take(), "unload ");
    form.Show();
    EXPECT_EQ(form.Take(), "load activate ");
}

TEST_F(FormLife, AFormIsActivatedWhenTheUserComesBackToIt)
{
    form.Show();
    form.FeedActivation(); // it is active already
    EXPECT_EQ(form.Take(), "load activate ");
    other.Show();
    form.FeedActivation();
    EXPECT_EQ(form.Take(), "activate ");
    EXPECT_EQ(forms.Active(), &form);
    other.Hide();
    other.FeedActivation();
    EXPECT_EQ(other.Take(), "load activate ");
    EXPECT_EQ(forms.Active(), &form);
}

TEST_F(FormLife, TheOwnerOfAModalFormIsNotActivatedAnew)
{
    form.Show();
    form.Take();
    platform.OnNextModal([&](Form& dialog) {
        form.FeedActivation();
        form.FeedClose();
        EXPECT_TRUE(form.IsShown());
        EXPECT_EQ(forms.Active(), &dialog);
        dialog.FeedClose();
    });
    other.ShowModal(&form);
    form.FeedActivation();
    platform.RunPendingEvents();
    EXPECT_EQ(form.Take(), "");
    EXPECT_EQ(forms.Active(), &form);
    EXPECT_EQ(other.Take(), "load activate ");
}

TEST_F(FormLife, AFormThatGoesDuringAModalOneIsForgotten)
{
    auto passing = std::make_unique<RecordedForm>(forms);
    passing->Show();
    platform.OnNextModal([&](Form& dialog) {
        passing.reset();
        dialog.Hide();
    });
    form.ShowModal(passing.get());
    EXPECT_EQ(forms.Active(), nullptr);
    EXPECT_TRUE(forms.Loaded() == std::vector<Form*>{&form});
}

TEST_F(FormLife, ChangesBeforeAnUnloadDoNotSilenceThoseAfterIt)
{
    form.Show();
    form.SetCaption("before");
    form.Unload();
    form.Show();
    platform.paints = 0;
    form.SetCaption("after");
    platform.RunPendingEvents();
    EXPECT_EQ(platform.paints, 1);
}

TEST_F(FormLife, AControlThatOutlivesItsFormCanStandOnAnother)
{
    Label label;
    {
        RecordedForm passing(forms);
        passing.Add(label);
    }
    EXPECT_EQ(label.OwnerForm(), nullptr);
    label.SetCaption("alone");
    form.Add(label);
    EXPECT_EQ(form.TakeChanges().back(), &label);
}

TEST_F(FormLife, TheSizeIsWhatTheWindowReallyHas)
{
    form.Show();
    form.Take();
    form.SetOuterWidth(4000); // 258.67 pixels inside the frame
    EXPECT_EQ(form.Width(), 3885);
    EXPECT_EQ(form.OuterWidth(), 4005);
    EXPECT_EQ(form.OuterHeight(), 1905);
    EXPECT_EQ(form.Take(), "resize ");
    form.FeedResize({3885, 1500});
    platform.refusesSize.insert(&form);
    form.SetOuterWidth(5000);
    EXPECT_EQ(form.Take(), "");
    EXPECT_EQ(form.Width(), 3885);
}

TEST_F(FormLife, OnlyAFormWithACloseBoxCloses)
{
    form.Show();
    form.HasCloseBox = false;
    form.FeedClose();
    EXPECT_TRUE(form.IsShown());
    form.HasCloseBox = true;
    form.FeedClose();
    EXPECT_FALSE(form.IsShown());
    EXPECT_TRUE(form.IsLoaded());
}

} // namespace
} // namespace tessarine
