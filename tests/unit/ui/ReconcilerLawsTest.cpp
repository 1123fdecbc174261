#include "Stage.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace ui;

// A law, tried on random trees. A failure names the seed that repeats it.

namespace {

constexpr unsigned seedCount = 60;
constexpr int stepCount = 40;

using Random = std::mt19937; // the same numbers with every standard library

// 0 to `count` - 1.
std::size_t below(Random& random, std::size_t count)
{
    return random() % count;
}

struct NoView final : platform::NSView, simulated::SimulatedPlace {
    platform::NSWindow* window() const override { return windowOfHost(); }
};

struct Host {
    struct Coordinator { };
    using NSViewType = NoView;

    std::shared_ptr<Coordinator> makeCoordinator() const { return std::make_shared<Coordinator>(); }
    std::shared_ptr<NoView> makeNSView(Coordinator&) const { return std::make_shared<NoView>(); }
    void updateNSView(NoView&, Coordinator&) const { }
};

// One thing that changes in many ways, shown by one component.
struct Item {
    enum class Look { text, nothing, host, row, layers, mixed, onlyChild, invisible, count };

    int id = 0;
    Published<Look> look = Look::text;
    Published<int> number = 0;
    Published<std::vector<std::shared_ptr<Item>>> children;
};

View viewOf(const std::shared_ptr<Item>& item);

View bodyOf(const Item& item)
{
    const auto key = [](const auto& child) { return std::to_string(child->id); };
    const auto children = [&] { return ForEach(item.children(), key, viewOf); };
    const auto text = [&] { return Text(std::to_string(item.number())); };

    switch (item.look()) {
    case Item::Look::nothing:
        return {};
    case Item::Look::host:
        return Host{};
    case Item::Look::row:
        return HStack{{.spacing = double(item.number())}, children()};
    case Item::Look::layers:
        return ZStack{{}, children(), text()}.background(Fill(Color::gray));
    case Item::Look::mixed:
        return VStack{
            {}, text(), children(), item.number() % 2 ? View(Host{}) : View(), text(), children()};
    case Item::Look::onlyChild:
        return item.children().empty() ? View() : viewOf(item.children().front());
    case Item::Look::invisible:
        return HStack{{}, children(), Host{}}.opacity(item.number() % 3).padding({.top = 1});
    default:
        return text();
    }
}

struct ItemView {
    std::shared_ptr<Item> item;
    View body() const { return bodyOf(*item); }
};

struct ComparedItemView : ItemView {
    bool operator==(const ComparedItemView& other) const { return item == other.item; }
};

View viewOf(const std::shared_ptr<Item>& item)
{
    return item->id % 2 ? View(ItemView{item}) : View(ComparedItemView{{item}});
}

// A tree of items that grows, shrinks and is shuffled at random.
class Forest {
public:
    explicit Forest(Random& random)
        : random_(random)
        , root(makeItem())
    {
        root->look = Item::Look::row;
    }

    void change()
    {
        auto& item = *anyItem();
        switch (below(random_, 5)) {
        case 0:
            item.look = anyLook();
            break;
        case 1:
            item.number = static_cast<int>(below(random_, 4));
            item.children.mutate([&](auto& children) { shuffle(children); });
            break;
        case 2:
            item.children.mutate([](auto& children) {
                if (!children.empty())
                    children.pop_back();
            });
            break;
        default:
            item.children.mutate([&](auto& children) {
                children.push_back(makeItem());
                shuffle(children);
            });
        }
    }

private:
    std::shared_ptr<Item> makeItem()
    {
        auto item = std::make_shared<Item>();
        item->id = ++itemCount_;
        item->number = itemCount_;
        item->look = anyLook();
        return item;
    }

    Item::Look anyLook()
    {
        return static_cast<Item::Look>(below(random_, static_cast<std::size_t>(Item::Look::count)));
    }

    void shuffle(std::vector<std::shared_ptr<Item>>& items)
    {
        for (std::size_t i = items.size(); i > 1; --i)
            std::swap(items[i - 1], items[below(random_, i)]);
    }

    std::shared_ptr<Item> anyItem()
    {
        auto item = root;
        while (!item->children().empty() && below(random_, 4) > 0)
            item = item->children()[below(random_, item->children().size())];
        return item;
    }

    Random& random_;
    int itemCount_ = 0;

public:
    std::shared_ptr<Item> root;
};

// Whether a hidden native view was made depends on whether it was ever shown: the one difference
// that may stay.
std::string looksOf(const simulated::SimulatedWindow& window)
{
    auto text = window.content().describe();
    const std::string unmade = " unmade";
    for (auto found = text.find(unmade); found != text.npos; found = text.find(unmade, found))
        text.erase(found, unmade.size());
    return text;
}

} // namespace

TEST(ReconcilerLaws, anyHistoryOfUpdatesEqualsAFreshBuild)
{
    for (unsigned seed = 1; seed <= seedCount; ++seed) {
        Stage stage;
        Random random(seed);
        Forest forest(random);
        auto& window = stage.show(viewOf(forest.root));
        for (int step = 0; step < stepCount; ++step) {
            for (auto changes = 1 + below(random, 6); changes > 0; --changes)
                forest.change();
            stage.settle();
            auto& fresh = stage.show(viewOf(forest.root));
            ASSERT_EQ(looksOf(window), looksOf(fresh)) << "seed " << seed << ", step " << step;
            fresh.close();
            stage.settle();
        }
    }
}
