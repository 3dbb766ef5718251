#include "components/ComponentDeque.h"

#include "components/PlainComponent.h"
#include "support/PanelTest.h"

#include <deque>
#include <stdexcept>
#include <utility>
#include <vector>

using namespace PANFx::Testing;
using PANFx::Components::ComponentDeque;
using PANFx::Components::ZELComponent;

namespace {

class ComponentDequeTest : public PanelTest
{
protected:
    std::vector<ZELComponent*> content() const { return {m_deque.begin(), m_deque.end()}; }

    using All = std::vector<ZELComponent*>;

    PlainComponent m_a{&panel(), "a"};
    PlainComponent m_b{&panel(), "b"};
    PlainComponent m_c{&panel(), "c"};
    ComponentDeque m_deque;
};

} // namespace

TEST_F(ComponentDequeTest, isSmallAndEmptyAtFirst)
{
    EXPECT_LE(sizeof(ComponentDeque), sizeof(void*));
    EXPECT_TRUE(m_deque.empty());
    EXPECT_EQ(m_deque.size(), 0u);
    EXPECT_EQ(m_deque.begin(), m_deque.end());
    EXPECT_EQ(std::as_const(m_deque).rbegin(), std::as_const(m_deque).rend());
    EXPECT_THROW(m_deque.at(0), std::out_of_range);
    m_deque.clear();
    EXPECT_TRUE(m_deque.empty());
}

TEST_F(ComponentDequeTest, growsAndShrinksAtBothEnds)
{
    m_deque.push_back(&m_b);
    m_deque.push_back(&m_c);
    m_deque.push_front(&m_a);
    EXPECT_EQ(content(), (All{&m_a, &m_b, &m_c}));
    EXPECT_EQ(m_deque.front(), &m_a);
    EXPECT_EQ(m_deque.back(), &m_c);
    EXPECT_EQ(m_deque[1], &m_b);
    EXPECT_EQ(m_deque.at(2), &m_c);
    EXPECT_EQ(*m_deque.rbegin(), &m_c);
    m_deque.pop_front();
    m_deque.pop_back();
    EXPECT_EQ(content(), (All{&m_b}));
}

TEST_F(ComponentDequeTest, isReadBackwardsAndWhereItMayNotBeChanged)
{
    m_deque = std::deque<ZELComponent*>{&m_a, &m_b, &m_c};
    EXPECT_EQ(All(m_deque.rbegin(), m_deque.rend()), (All{&m_c, &m_b, &m_a}));
    const ComponentDeque& constant = m_deque;
    EXPECT_EQ(All(constant.rbegin(), constant.rend()), (All{&m_c, &m_b, &m_a}));
    EXPECT_EQ(constant.front(), &m_a);
    EXPECT_EQ(constant[1], &m_b);
    EXPECT_EQ(constant.at(1), &m_b);
    EXPECT_EQ(constant.back(), &m_c);
    EXPECT_THROW(constant.at(3), std::out_of_range);
}

TEST_F(ComponentDequeTest, isFilledComparedAndExchangedAsAStandardOne)
{
    EXPECT_EQ(m_deque.emplace_back(&m_b), &m_b);
    EXPECT_EQ(m_deque.emplace_front(&m_a), &m_a);
    EXPECT_EQ(All(m_deque.crbegin(), m_deque.crend()), (All{&m_b, &m_a}));
    ComponentDeque other;
    other.assign({&m_a});
    EXPECT_TRUE(m_deque != other);
    other.resize(2, &m_b);
    EXPECT_TRUE(m_deque == other);
    m_deque.resize(1);
    const All one = {&m_c};
    other.assign(one.begin(), one.end());
    m_deque.swap(other);
    EXPECT_EQ(content(), (All{&m_c}));
    EXPECT_EQ(All(other.begin(), other.end()), (All{&m_a}));
    m_deque.resize(0);
    EXPECT_TRUE(m_deque == ComponentDeque());
    m_deque.resize(2);
    EXPECT_EQ(content(), (All{nullptr, nullptr}));
}

TEST_F(ComponentDequeTest, insertsAndErasesAtAPlace)
{
    m_deque.insert(m_deque.end(), &m_c);
    m_deque.insert(m_deque.begin(), &m_a);
    EXPECT_EQ(*m_deque.insert(m_deque.cbegin() + 1, &m_b), &m_b);
    EXPECT_EQ(content(), (All{&m_a, &m_b, &m_c}));
    EXPECT_EQ(*m_deque.erase(m_deque.begin()), &m_b);
    m_deque.erase(m_deque.cbegin(), m_deque.cend());
    EXPECT_TRUE(m_deque.empty());
}

TEST_F(ComponentDequeTest, standsForAStandardDeque)
{
    std::deque<ZELComponent*>& same = m_deque;
    same.push_back(&m_a);
    EXPECT_EQ(content(), (All{&m_a}));
    const ComponentDeque& constant = m_deque;
    const std::deque<ZELComponent*>& read = constant;
    EXPECT_EQ(&read, &same);
    const std::deque<ZELComponent*> copy = m_deque;
    EXPECT_EQ(copy, same);
    m_deque = std::deque<ZELComponent*>{&m_b, &m_c};
    EXPECT_EQ(content(), (All{&m_b, &m_c}));
}

TEST_F(ComponentDequeTest, sharesNothingWithAnother)
{
    ComponentDeque other = m_deque;
    m_deque.push_back(&m_a);
    EXPECT_TRUE(other.empty());
    other = m_deque;
    m_deque.push_back(&m_b);
    EXPECT_EQ(other.size(), 1u);
    other = ComponentDeque();
    EXPECT_TRUE(other.empty());
    EXPECT_TRUE(ComponentDeque().empty());
    EXPECT_EQ(content(), (All{&m_a, &m_b}));
}

TEST_F(ComponentDequeTest, keepsItsContentWhenItIsGivenItself)
{
    const ComponentDeque& itself = m_deque;
    m_deque = itself;
    EXPECT_TRUE(m_deque.empty());
    m_deque = {&m_a, &m_b};
    m_deque = itself;
    EXPECT_EQ(content(), All({&m_a, &m_b}));
}
