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
    const Case cases[] = {
        {"other kind", Text("a"), Fill(Color::clear), 1, 1, ""},
        {"same component", Labelled<1>{"a"}, Labelled<1>{"b"}, 0, 0, "b"},
        {"other component", Labelled<1>{"a"}, Labelled<2>{"a"}, 1, 1, "a"},
        {"other order of kinds", HStack{{}, Text("a"), Fill(Color::clear)},
            HStack{{}, Fill(Color::clear), Text("b")}, 0, 0, "b"},
        {"fewer of a kind", HStack{{}, Text("a"), Text("b"), Text("c")},
            HStack{{}, Text("b"), Text("c")}, 0, 1, "b c"},
        {"an absent child takes no place", HStack{{}, View(), Text("a")},
            HStack{{}, Text("b"), Text("c")}, 1, 0, "b c"},
        {"other order of keys", keyedTexts({"a", "b", "c"}), keyedTexts({"c", "a", "b"}), 0, 0,
            "c a b"},
        {"keys to no keys", keyedTexts({"a"}), HStack{{}, Text("a")}, 1, 1, "a"},
        {"one key twice", keyedTexts({"a", "a"}), keyedTexts({"a", "a", "a"}), 1, 0, "a a a"},
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

TEST_F(Reconciler, aWidgetFollowsItsKeyWithItsState)
{
    const auto rows = [this](const std::vector<std::string>& keys) {
        return HStack{{}, Fill(Color::clear),
            ForEach(
                keys, [](const auto& key) { return key; },
                [this](const auto& key) {
                    return Stateful{key, setters};
                })};
    };
    change(rows({"a", "b", "c"}));
    for (const auto* key : {"a", "b", "c"})
        setters->at(key)(key);
    settle();
    const auto before = window.content().findAll<TextNode>();

    change(rows({"c", "x", "a", "b"}));
    EXPECT_EQ(textsOf(window.content()), "c=c x=new a=a b=b");
    const auto after = window.content().findAll<TextNode>();
    EXPECT_TRUE(after[0] == before[2] && after[2] == before[0] && after[3] == before[1]);
    change(rows({"x"}));
    change(rows({"a", "x"}));
    EXPECT_EQ(textsOf(window.content()), "a=new x=new") << "what has gone is forgotten";
}

TEST_F(Reconciler, oneDescriptionInTwoPlacesHasAStateInEach)
{
    const View both = Stateful{"a", setters};
    change(HStack{{}, both, both});
    setters->at("a")("set"); // that of the second, which was built last
    settle();
    change(HStack{{}, both, both});
    EXPECT_EQ(textsOf(window.content()), "a=new a=set");
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
}

TEST_F(Reconciler, handsAddressesToEveryViewAlsoWhenOneChangesTheTree)
{
    std::string opened;
    *screen = VStack{
        {}, Text("b").opacity(0.5).onOpenURL([&](const auto&) {
            opened += " inner";
        })}.onOpenURL([&](const auto& url) {
        opened = url.absoluteString();
        *screen = Text("opened");
    });
    window.mount().flush();
    window.mount().openURL(*platform::URL::fromString("velmaro://fuel"));
    EXPECT_EQ(opened, "velmaro://fuel inner");
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
    platform.mainQueue().advance(0.2);
    EXPECT_EQ(window.content().describe().find("leaving"), std::string::npos);
    EXPECT_EQ(textsOf(window.content()), "base b");
}
