// Tells all who listen, in the order in which they began to.
export class Signal<T = void> {
  private readonly listeners: ((value: T) => void)[] = [];

  on(listener: (value: T) => void): void {
    this.listeners.push(listener);
  }

  send(value: T): void {
    this.listeners.forEach((listener) => listener(value));
  }
}
