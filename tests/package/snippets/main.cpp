// The snippets are there to be compiled.

int main() {}
