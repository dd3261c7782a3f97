#include "ObjectCount.h"

#include <QObject>

#include <atomic>
#include <stdexcept>

// As the toolkit's own header for tools declares it, which is not installed everywhere.
extern quintptr Q_DECL_IMPORT qtHookData[];

namespace {

enum HookIndex { HookVersion = 0, HookCount = 1, AddObject = 3, RemoveObject = 4 };

std::atomic<int> count = 0;

void added(QObject *)
{
    ++count;
}

void removed(QObject *)
{
    --count;
}

} // namespace

void ObjectCount::start()
{
    if (qtHookData[HookVersion] < 1 || qtHookData[HookCount] <= RemoveObject) {
        throw std::runtime_error("this Qt does not tell of its objects");
    }
    count = 0;
    qtHookData[AddObject] = reinterpret_cast<quintptr>(&added);
    qtHookData[RemoveObject] = reinterpret_cast<quintptr>(&removed);
}

int ObjectCount::current()
{
    return count;
}
