// Lists and maps, in particular while they change.

#include <afxcoll.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

class Item : public CObject {};

std::vector<CObject*> Elements(const CObList& list) {
    std::vector<CObject*> elements;
    for (POSITION at = list.GetHeadPosition(); at != nullptr;)
        elements.push_back(list.GetNext(at));
    std::vector<CObject*> backwards;
    for (POSITION at = list.GetTailPosition(); at != nullptr;)
        backwards.insert(backwards.begin(), list.GetPrev(at));
    EXPECT_EQ(elements, backwards);
    EXPECT_EQ(static_cast<int>(elements.size()), list.GetCount());
    return elements;
}

TEST(ObjectList, KeepsTheOrderOfElements) {
    Item a, b, c, d;
    CObList list(2); // more elements than fit in a block
    list.AddTail(&b);
    list.AddTail(&c);
    list.AddHead(&a);
    const POSITION last = list.AddTail(&d);
    EXPECT_EQ(Elements(list), (std::vector<CObject*>{&a, &b, &c, &d}));

    list.RemoveAt(list.Find(&c));
    list.RemoveAt(last);
    EXPECT_EQ(Elements(list), (std::vector<CObject*>{&a, &b}));
    EXPECT_EQ(list.Find(&c), nullptr);
    EXPECT_EQ(&a, list.RemoveHead());
    EXPECT_EQ(&b, list.RemoveHead());
    EXPECT_TRUE(Elements(list).empty());

    list.AddHead(&d); // uses a freed node
    EXPECT_EQ(Elements(list), (std::vector<CObject*>{&d}));
    list.RemoveAll();
    list.AddTail(&a);
    EXPECT_EQ(&a, list.GetHead());
    EXPECT_EQ(&a, list.GetTail());
}

TEST(ObjectList, ElementsBeforeThePositionCanBeRemoved) {
    Item items[5];
    CObList list;
    for (Item& item : items)
        list.AddTail(&item);
    for (POSITION at = list.GetHeadPosition(); at != nullptr;) {
        const POSITION here = at;
        if (list.GetNext(at) != &items[2]) list.RemoveAt(here);
    }
    EXPECT_EQ(Elements(list), (std::vector<CObject*>{&items[2]}));
}

std::vector<std::string> Keys(const CMapStringToPtr& map) {
    std::vector<std::string> keys;
    for (POSITION at = map.GetStartPosition(); at != nullptr;) {
        CString key;
        void* value = nullptr;
        map.GetNextAssoc(at, key, value);
        keys.push_back(static_cast<LPCSTR>(key));
    }
    return keys;
}

TEST(StringMap, IteratesInInsertionOrder) {
    CMapStringToPtr map(3);
    int one = 1, two = 2;
    map.SetAt("zebra", &one);
    map.SetAt("ant", &one);
    map.SetAt("", &one);
    map.SetAt("zebra", &two); // keeps its position
    EXPECT_EQ(Keys(map), (std::vector<std::string>{"zebra", "ant", ""}));
    void* value = nullptr;
    EXPECT_TRUE(map.Lookup("zebra", value));
    EXPECT_EQ(&two, value);
    EXPECT_TRUE(map.RemoveKey("ant"));
    EXPECT_FALSE(map.RemoveKey("ant"));
    EXPECT_FALSE(map.Lookup("ant", value));
    EXPECT_EQ(&two, value) << "a failed lookup does not change the value";
    map.SetAt("ant", &one);
    EXPECT_EQ(Keys(map), (std::vector<std::string>{"zebra", "", "ant"}));
}

TEST(StringMap, StoresManyKeys) {
    CMapStringToPtr map;
    constexpr int kCount = 20000;
    for (std::intptr_t i = 0; i < kCount; ++i)
        map[std::to_string(i).c_str()] = reinterpret_cast<void*>(i);
    for (int i = 0; i < kCount; i += 2)
        EXPECT_TRUE(map.RemoveKey(std::to_string(i).c_str()));
    EXPECT_EQ(kCount / 2, map.GetCount());
    for (std::intptr_t i = 0; i < kCount; ++i) {
        void* value = nullptr;
        ASSERT_EQ(i % 2, map.Lookup(std::to_string(i).c_str(), value)) << i;
        ASSERT_EQ(i % 2 == 1 ? reinterpret_cast<void*>(i) : nullptr, value);
    }
    map.RemoveAll();
    EXPECT_EQ(map.GetStartPosition(), nullptr);
    EXPECT_TRUE(map.IsEmpty());
}

TEST(WordMap, StoresAll65536Keys) {
    CMapWordToOb map;
    Item item;
    for (int key = 0; key <= 0xFFFF; ++key)
        map.SetAt(static_cast<WORD>(key), &item);
    EXPECT_EQ(map.GetCount(), 0x10000);
    EXPECT_EQ(&item, map[0xFFFF]);
    map.RemoveAll();
    EXPECT_EQ(map[7], nullptr) << "[] inserts a missing key with null";
    EXPECT_EQ(map.GetCount(), 1);
}

TEST(WordArray, Grows) {
    CWordArray words;
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(i, words.Add(static_cast<WORD>(0xFF00 + i)));
    EXPECT_EQ(words.GetSize(), 100);
    EXPECT_EQ(words[99], 0xFF63);
    words.RemoveAll();
    EXPECT_EQ(words.GetSize(), 0);
}

} // namespace
