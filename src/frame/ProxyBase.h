#pragma once

class QStyle;

/**
 * What a proxy style may own in place of @p base: the style itself; but of the application's style,
 * and of one that a style sheet has made, both of which belong to somebody else, a new one of the
 * kind that lies at their bottom. nullptr stands for the platform's style.
 */
QStyle *proxyBase(QStyle *base);
