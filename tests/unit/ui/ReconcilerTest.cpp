#include "Stage.h"

#include <gtest/gtest.h>
#include <map>

using namespace ui;

namespace {

template <int number> struct Labelled {
    std::string label;
    View body() const { return Text(label); }
};

// Counts how often its body is evaluated.
struct Counted {
    std::shared_ptr<Published<std::string>> text;
    std::shared_ptr<int> evaluations;

    View body() const
    {
        ++*evaluations;
        return Text((*text)());
    }
};

struct ComparedCounted {
    Counted counted;

    bool operator==(const ComparedCounted& other) const
    {
        return counted.text == other.counted.text;
    }
    View body() const { return counted.body(); }
};

// Hands its state's setter out under its name.
struct Stateful {
    std::string name;
    std::shared_ptr<std::map<std::string, std::function<void(std::string)>>> setters;
    State<std::string> value = std::string("new");

    auto state() { return std::tie(value); }
    View body() const
    {
        (*setters)[name] = value.setter();
        return Text(name + "=" + value());
    }
};

View keyedTexts(const std::vector<std::string>& keys)
{
    return HStack{{},
        ForEach(
            keys, [](const auto& key) { return key; }, [](const auto& key) { return Text(key); })};
}

struct Reconciler : ChangingStage, testing::Test {
    std::shared_ptr<Published<std::string>> text = std::make_shared<Published<std::string>>("a");
    std::shared_ptr<int> evaluations = std::make_shared<int>(0); // of the counted views
    std::shared_ptr<std::map<std::string, std::function<void(std::string)>>> setters =
        std::make_shared<std::map<std::string, std::function<void(std::string)>>>();
};

} // namespace

TEST_F(Reconciler, keepsAPlaceByKindComponentKeyAndCount)
{
    struct Case {
        const char* name;
        View before;
        View after;
        int made;
        int removed;
        std::string texts;
    };
    const std::vector<std::string> none;
    const Case cases[] = {
        {"same kind", Text("a"), Text("b"), 0, 0, "b"},
        {"other kind", Text("a"), Fill(Color::clear), 1, 1, ""},
        {"same component", Labelled<1>{"a"}, Labelled<1>{"b"}, 0, 0, "b"},
        {"other component", Labelled<1>{"a"}, Labelled<2>{"a"}, 1, 1, "a"},
        {"nothing to something", View(), Text("b"), 1, 0, "b"},
        {"something to nothing", Text("a"), View(), 0, 1, ""},
        {"other order of kinds", HStack{{}, Text("a"), Fill(Color::clear)},
            HStack{{}, Fill(Color::clear), Text("b")}, 0, 0, "b"},
        {"fewer of a kind", HStack{{}, Text("a"), Text("b"), Text("c")},
            HStack{{}, Text("b"), Text("c")}, 0, 1, "b c"},
        {"an absent child takes no place", HStack{{}, View(), Text("a")},
            HStack{{}, Text("b"), Text("c")}, 1, 0, "b c"},
        {"other order of keys", keyedTexts({"a", "b", "c"}), keyedTexts({"c", "a", "b"}), 0, 0,
            "c a b"},
        {"other keys", keyedTexts({"a", "b"}), keyedTexts({"b", "d"}), 1, 1, "b d"},
        {"keys to no keys", keyedTexts({"a"}), HStack{{}, Text("a")}, 1, 1, "a"},
        {"one key twice", keyedTexts({"a", "a"}), keyedTexts({"a", "a", "a"}), 1, 0, "a a a"},
        {"all keys gone", keyedTexts({"a", "b"}), keyedTexts(none), 0, 2, ""},
    };
    for (const auto& [name, before, after, made, removed, texts] : cases) {
        SCOPED_TRACE(name);
        change(before);
        window.renderer().counts = {};
        change(after);
        EXPECT_EQ(window.renderer().counts.made, made);
        EXPECT_EQ(window.renderer().counts.removed, removed);
        EXPECT_EQ(textsOf(window.content()), texts);
    }
}

TEST_F(Reconciler, anOldSetterSetsTheStateOfTheViewThatIsShownNow)
{
    change(Stateful{"a", setters});
    const auto oldSetter = setters->at("a");
    change(Stateful{"a", setters});
    oldSetter("set");
    settle();
    EXPECT_EQ(textsOf(window.content()), "a=set");
}

TEST_F(Reconciler, oneDescriptionInTwoPlacesHasAStateInEach)
{
    const View both = Stateful{"a", setters};
    change(HStack{{}, both, both});
    setters->at("a")("set"); // that of the second, which was built last
    settle();
    EXPECT_EQ(textsOf(window.content()), "a=new a=set");
    change(HStack{{}, both, both});
    EXPECT_EQ(textsOf(window.content()), "a=new a=set");
}

TEST_F(Reconciler, redrawsOnceATurnHoweverManyFieldsChange)
{
    const auto& counted = show(Counted{text, evaluations});
    for (const auto* next : {"b", "c", "d"})
        *text = next;
    EXPECT_EQ(*evaluations, 1);
    EXPECT_EQ(textsOf(counted.content()), "a");

    settle();
    EXPECT_EQ(*evaluations, 2);
    EXPECT_EQ(textsOf(counted.content()), "d");
    EXPECT_EQ(platform.mainQueue().pendingCount(), 0u);
}

TEST_F(Reconciler, redrawsAComponentOnceWhenTheOneAboveItIsRedrawnToo)
{
    change(Counted{text, evaluations});
    *text = "b";
    change(Counted{text, evaluations});
    EXPECT_EQ(*evaluations, 2);
    EXPECT_EQ(textsOf(window.content()), "b");
}

TEST_F(Reconciler, movesNothingThatStandsWhereItShould)
{
    struct Step {
        std::vector<std::string> keys;
        int placed;
    };
    change(keyedTexts({"a", "b", "c", "d"}));
    for (const auto& [keys, placed] : {Step{{"d", "a", "b", "c"}, 1}, {{"c", "d", "a", "b"}, 1},
             {{"c", "d", "a", "b"}, 0}, {{"c", "d", "b"}, 0}, {{"d", "c", "e", "b"}, 2}}) {
        window.renderer().counts = {};
        change(keyedTexts(keys));
        EXPECT_EQ(window.renderer().counts.placed, placed) << textsOf(window.content());
    }
}

TEST_F(Reconciler, redrawsOnlyThoseWhoHaveReadTheField)
{
    const auto other = std::make_shared<Published<std::string>>("b");
    const auto otherEvaluations = std::make_shared<int>(0);
    change(VStack{{}, Counted{other, otherEvaluations}, Counted{text, evaluations}});
    window.renderer().counts = {};

    *text = "c";
    settle();
    EXPECT_EQ(*otherEvaluations, 1);
    EXPECT_EQ(*evaluations, 2);
    EXPECT_EQ(window.renderer().counts, (simulated::SimulatedRenderer::Counts{.applied = 1}));
}

TEST_F(Reconciler, skipsAComponentThatEqualsThePreviousUnlessItsFieldChanged)
{
    const auto described = [&] { return HStack{{}, ComparedCounted{{text, evaluations}}}; };
    change(described());
    change(described());
    EXPECT_EQ(*evaluations, 1);

    *text = "b";
    change(described());
    EXPECT_EQ(*evaluations, 2);
    EXPECT_EQ(textsOf(window.content()), "b");

    const auto otherText = std::make_shared<Published<std::string>>("c");
    change(HStack{{}, ComparedCounted{{otherText, evaluations}}});
    EXPECT_EQ(textsOf(window.content()), "c");
    *text = "unread";
    settle();
    EXPECT_EQ(*evaluations, 3);
}

TEST_F(Reconciler, aWindowMayGoWithARedrawOnItsWay)
{
    auto renderer = std::make_unique<simulated::SimulatedRenderer>();
    auto root = std::make_unique<simulated::SimulatedWidget>(*renderer);
    auto mount = std::make_unique<Mount>(Counted{text, evaluations}, *renderer, *root);
    *text = "b";
    mount.reset();
    settle();
    EXPECT_EQ(*evaluations, 1);
    EXPECT_TRUE(root->children().empty());
}

TEST_F(Reconciler, aModelOfAViewLivesAsLongAsItsPlace)
{
    struct Model {
        static std::shared_ptr<Model> make() { return std::make_shared<Model>(); }
        Published<int> count = 0;
    };
    struct Owner {
        StateObject<Model> model;
        std::shared_ptr<std::weak_ptr<Model>> seen;

        auto state() { return std::tie(model); }
        View body() const
        {
            *seen = model();
            return Text(std::to_string(model()->count()));
        }
    };
    const auto seen = std::make_shared<std::weak_ptr<Model>>();
    change(Owner{{}, seen});
    seen->lock()->count = 7;
    change(Owner{{}, seen});
    EXPECT_EQ(textsOf(window.content()), "7");

    change(View());
    EXPECT_TRUE(seen->expired());
}

TEST_F(Reconciler, handsAddressesToEveryViewThatOpensThem)
{
    std::vector<std::string> opened;
    const auto opener = [&](const char* name) {
        return [&opened, name](
                   const platform::URL& url) { opened.push_back(name + url.absoluteString()); };
    };
    change(
        VStack{{}, Labelled<1>{"a"}, Text("b").opacity(0.5).onOpenURL(opener("inner "))}.onOpenURL(
            opener("outer ")));
    window.mount().openURL(*platform::URL::fromString("velmaro://fuel"));
    EXPECT_EQ(opened, (std::vector<std::string>{"outer velmaro://fuel", "inner velmaro://fuel"}));
}

TEST_F(Reconciler, anOpenedAddressMayChangeTheTree)
{
    *screen = VStack{{}, Text("b")}.onOpenURL([this](const auto&) { *screen = Text("opened"); });
    window.mount().flush();
    window.mount().openURL(*platform::URL::fromString("velmaro://fuel"));
    settle();
    EXPECT_EQ(textsOf(window.content()), "opened");
}

TEST_F(Reconciler, whatGoesWithATransitionIsShownButNeverUpdatedAgain)
{
    const View fading =
        View(Counted{text, evaluations}).transition({.fades = true, .duration = 0.2});
    change(ZStack{{}, Text("base"), fading});

    change(ZStack{{}, Text("base")});
    *text = "b";
    settle();
    EXPECT_EQ(*evaluations, 1);
    EXPECT_NE(window.content().describe().find("duration 0.2 leaving"), std::string::npos);

    change(ZStack{{}, Text("base"), fading}); // comes again before the old one has gone
    EXPECT_EQ(textsOf(window.content()), "base b");
    platform.mainQueue().advance(0.2);
    EXPECT_EQ(window.content().describe().find("leaving"), std::string::npos);
    EXPECT_EQ(textsOf(window.content()), "base b");
}
