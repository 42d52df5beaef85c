#include "varnel/process/VarnelErrorHandler.h"

#include <iostream>

void VarnelErrorHandler::display(const std::list<std::string> &messages) const {
    for (const std::string &message : messages) display(message);
    char answer = '\0';
    while (answer == '\0' && std::cin.get(answer)) {
    }
}

void VarnelErrorHandler::display(const std::string &message) const {
    std::cout << message;
}
