#pragma once

/** Counts the QObjects of this process, of all threads, by the toolkit's hooks for tools. */
namespace ObjectCount {

/** Begins at 0; throws std::runtime_error when the hooks are not as expected. */
void start();
/** How many were made since start() less those that have gone, made before it or not. */
int current();

} // namespace ObjectCount
