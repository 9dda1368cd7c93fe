#include <QtCore>
int main() {}
